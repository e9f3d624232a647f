#include "platform/contract/PreferencesDomainContract.h"

#include "platform/preferences/SqlitePreferencesDomain.h"
#include "support/TemporaryDirectory.h"

namespace tovrel {
namespace {

class SqlitePreferencesRig {
  public:
    PreferencesDomain& domain() { return domain_; }

  private:
    testing_support::TemporaryDirectory directory_;
    SqlitePreferencesDomain domain_{directory_.path() / "preferences.sqlite",
                                    [](const std::string& line) { ADD_FAILURE() << line; }};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Sqlite, PreferencesDomainContract, SqlitePreferencesRig);
INSTANTIATE_TYPED_TEST_SUITE_P(LastKnownOfSqlite, PreferencesDomainContract,
                               LastKnownPreferencesRig<SqlitePreferencesRig>);

} // namespace
} // namespace tovrel
