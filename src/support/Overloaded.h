#pragma once

namespace tovrel {

/// A visitor for `std::visit`, made of one lambda for each alternative. The compiler rejects it if one is
/// missing.
template <typename... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};

template <typename... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

} // namespace tovrel
