#include "platform/contract/MainQueueContract.h"

#include <QTest>
#include <QTimer>
#include <optional>
#include <utility>

#include "qt/QtMainQueue.h"

namespace tovrel {
namespace {

class QtMainQueueRig {
  public:
    MainQueue& queue() { return *queue_; }
    template <typename Condition>
    bool until(Condition condition) {
        return QTest::qWaitFor(condition);
    }
    static auto now() { return std::chrono::steady_clock::now(); }
    void end() {
        queue_.reset();
        bool isLater = false;
        QTimer::singleShot(20, [&] { isLater = true; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return isLater; }));
    }

  private:
    std::optional<QtMainQueue> queue_{std::in_place};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, MainQueueContract, QtMainQueueRig);

} // namespace
} // namespace tovrel
