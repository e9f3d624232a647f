#pragma once

#include <QTranslator>
#include <string_view>

#include "support/LocalizedString.h"

namespace tovrel {

/// The program's texts in the user's language, as far as they are translated; the rest is in English. Made
/// after the application object and before every view, and gone before that object is.
class Translations {
  public:
    /// For a locale such as "de_DE"; an empty identifier takes the environment's (LANGUAGE, LC_ALL,
    /// LC_MESSAGES, LANG).
    explicit Translations(std::string_view localeIdentifier);
    ~Translations();
    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

  private:
    QTranslator english_; ///< What stands for keys that are no text themselves.
    QTranslator language_;
};

/// Asks the translations that are there when it is called.
[[nodiscard]] LocalizedString localizedByQt();

} // namespace tovrel
