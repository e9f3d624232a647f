#include "support/Base64.h"

#include <gtest/gtest.h>

namespace tovrel {
namespace {

TEST(Base64, IsReadOnlyInTheFormItIsWritten) {
    for (const std::string bytes : {"", "f", "fo", "foo", "foob", "fooba", "foobar"}) {
        EXPECT_EQ(bytesFromBase64(base64From(bytes)), bytes);
    }
    EXPECT_EQ(base64From("fooba"), "Zm9vYmE=");
    for (const char* wrong :
         {"Zg", "Zg=", "Zg===", "Zh==", "Z===", "Z", "=", "Zg==Zg==", "Zm9v\n", "Zm 9v", "Zm-_"}) {
        EXPECT_EQ(bytesFromBase64(wrong), std::nullopt) << wrong;
    }
}

} // namespace
} // namespace tovrel
