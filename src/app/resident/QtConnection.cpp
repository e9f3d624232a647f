#include "app/resident/QtConnection.h"

#include <QGuiApplication>

namespace tovrel {

ToolkitConnection connectionOfQt() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr
               ? ToolkitConnection{.kind = ToolkitConnection::Kind::x11, .handle = x11->connection()}
               : ToolkitConnection{};
}

} // namespace tovrel
