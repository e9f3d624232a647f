#include "menus/MenuCache.h"

#include <gtest/gtest.h>

#include "platform/memory/MemoryApplication.h"

namespace tovrel {
namespace {

using namespace std::chrono_literals;

std::shared_ptr<MemoryApplication> application(std::int32_t process, const std::optional<Text>& identifier) {
    return std::make_shared<MemoryApplication>(process, identifier, std::nullopt);
}

const std::vector<ScannedMenuItem> oneItem(1);

TEST(MenuCache, EntriesAreServedForHalfAMinuteAndThenGone) {
    MenuCache cache;
    const MenuCacheKey key{"X", 100};
    cache.store(application(100, "X"), oneItem, 1000s);
    EXPECT_TRUE(cache.cachedItems(key, 1000s + 30s));
    EXPECT_TRUE(cache.cachedItems(key, 0s));
    EXPECT_FALSE(cache.cachedItems(key, 1000s + 30s + 1ms));
    EXPECT_FALSE(cache.cachedItems(key, 1000s + 10s));
    cache.store(application(100, "X"), {}, 2000s);
    EXPECT_EQ(cache.cachedItems(key, 2000s)->size(), 0U);
}

TEST(MenuCache, EachInstanceHasItsOwn) {
    MenuCache cache;
    cache.store(application(7, std::nullopt), oneItem, 0s);
    cache.store(application(100, "X"), {}, 0s);
    EXPECT_EQ(cache.cachedItems({std::nullopt, 7}, 0s)->size(), 1U);
    EXPECT_FALSE(cache.cachedItems({"X", 7}, 0s));
    EXPECT_FALSE(cache.cachedItems({"X", 101}, 0s));
}

TEST(MenuCache, EntriesOfEndedApplicationsAreDropped) {
    MenuCache cache;
    const auto editor = application(100, "X");
    cache.store(editor, oneItem, 0s);
    EXPECT_EQ(editor.use_count(), 2);
    editor->setTerminated(true);
    EXPECT_FALSE(cache.cachedItems({"another", 1}, 0s));
    EXPECT_EQ(editor.use_count(), 1);
    EXPECT_FALSE(cache.cachedItems({"X", 100}, 0s));

    // The end of an application cannot be detected if it seemed to have ended while its menus were read.
    cache.store(editor, oneItem, 0s);
    EXPECT_TRUE(cache.cachedItems({"X", 100}, 0s));
}

} // namespace
} // namespace tovrel
