#include "platform/contract/SettingsWindowContract.h"

#include <QTest>
#include <algorithm>

#include "platform/memory/MemorySettingsWindow.h"
#include "views/settings/SettingsPages.h"
#include "views/settings/SettingsStage.h"

namespace tovrel {
namespace {

class MemorySettingsWindowRig {
  public:
    SettingsWindow& window() { return window_; }
    std::shared_ptr<SettingsViewModel> makeModel() { return stage_.makeModel(); }
    [[nodiscard]] bool isVisible() const { return window_.isVisible(); }
    [[nodiscard]] bool isKey() const { return window_.isVisible(); }
    SettingsTab shownTab() { return window_.state().selectedTab.get(); }
    void drag() {}
    static Point place() { return {}; }
    void close() { window_.close(); }
    template <typename Condition>
    bool until(Condition condition) {
        return condition();
    }

  private:
    SettingsStage stage_;
    MemorySettingsWindow window_;
};

class QtSettingsWindowRig {
  public:
    SettingsWindow& window() { return stage_.window; }
    std::shared_ptr<SettingsViewModel> makeModel() { return stage_.makeModel(); }
    bool isVisible() { return view().isVisible(); }
    bool isKey() { return view().isVisible() && view().isActive(); }
    SettingsTab shownTab() {
        const QQuickItem* header = stage_.find("header");
        const QString label = header == nullptr ? QString() : header->property("text").toString();
        return std::ranges::find_if(settingsPages(),
                                    [&](const SettingsPageEntry& page) { return label == page.title; })
            ->tab;
    }
    void drag() { view().setFramePosition({33, 44}); }
    QPoint place() { return view().framePosition(); }
    void close() { view().close(); }
    template <typename Condition>
    bool until(Condition condition) {
        return QTest::qWaitFor(condition);
    }

  private:
    QQuickView& view() { return stage_.window.window(); }

    SettingsStage stage_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, SettingsWindowContract, MemorySettingsWindowRig);
INSTANTIATE_TYPED_TEST_SUITE_P(Qt, SettingsWindowContract, QtSettingsWindowRig);

} // namespace
} // namespace tovrel
