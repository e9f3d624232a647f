#pragma once

#include <cstdlib>
#include <memory>

namespace tovrel {

struct XcbFree {
    void operator()(void* memory) const { std::free(memory); } // NOLINT: xcb allocates answers so
};

/// Owns a reply, an event or an error from xcb.
template <typename Answer>
using XcbOwned = std::unique_ptr<Answer, XcbFree>;

} // namespace tovrel
