#pragma once

#include <QString>

#include "support/Text.h"

namespace tovrel {

inline QString qtString(const Text& text) {
    return QString::fromUtf8(text.view().data(), static_cast<qsizetype>(text.view().size()));
}

inline Text textFrom(const QString& string) {
    return string.toStdString();
}

} // namespace tovrel
