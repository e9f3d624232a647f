#include "views/shared/ScreenReader.h"

#include <QAccessible>

namespace tovrel {

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): QML calls methods of objects
void ScreenReader::moveTo(QQuickItem* item) {
    QAccessibleEvent event(item, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

} // namespace tovrel
