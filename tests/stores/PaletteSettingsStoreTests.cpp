#include "stores/PaletteSettingsStore.h"

#include <gtest/gtest.h>

#include "platform/memory/MemoryPreferencesDomain.h"
#include "stores/FirstLaunchOnboardingStore.h"

namespace tovrel {
namespace {

TEST(PaletteSettingsStore, ReadsOnceAndFallsBackOnOtherTypes) {
    MemoryPreferencesDomain domain;
    domain.set("paletteSettings.showCheckedStatus", Text("false"));
    domain.set("paletteSettings.commandShortcutOpensSettings", PreferenceData{"true"});
    PaletteSettingsStore store(domain, "paletteSettings");
    EXPECT_TRUE(store.showCheckedStatus().get());
    EXPECT_FALSE(store.commandShortcutOpensSettings().get());

    int notified = 0;
    const Subscription subscription = store.showCheckedStatus().subscribe([&] {
        ++notified;
        EXPECT_FALSE(booleanValue(domain, "paletteSettings.showCheckedStatus").has_value()); // not stored yet
    });
    store.setShowCheckedStatus(false);
    EXPECT_EQ(notified, 1);
    EXPECT_FALSE(PaletteSettingsStore(domain, "paletteSettings").showCheckedStatus().get());
    domain.set("paletteSettings.showCheckedStatus", true);
    EXPECT_FALSE(store.showCheckedStatus().get());
}

TEST(FirstLaunchOnboardingStore, IsMarkedOnce) {
    MemoryPreferencesDomain domain;
    FirstLaunchOnboardingStore store(domain, "firstLaunchOnboarding.accessibilityOnboardingShown");
    EXPECT_FALSE(store.accessibilityOnboardingShown());
    domain.set("firstLaunchOnboarding.accessibilityOnboardingShown", Text("true"));
    EXPECT_FALSE(store.accessibilityOnboardingShown());
    store.markAccessibilityOnboardingShown();
    EXPECT_TRUE(store.accessibilityOnboardingShown());
}

} // namespace
} // namespace tovrel
