#pragma once

/// The address of the resident program on the session bus. packaging/org.tovrel.Tovrel.xml describes its
/// interface.
namespace tovrel::dbus_names {
/// Also the program's application identifier and the name of its desktop entry.
inline constexpr const char* service = "org.tovrel.Tovrel";
inline constexpr const char* objectPath = "/org/tovrel/Tovrel";
inline constexpr const char* interface = "org.tovrel.Tovrel";
} // namespace tovrel::dbus_names
