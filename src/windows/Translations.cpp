#include "windows/Translations.h"

#include <QCoreApplication>
#include <QLocale>
#include <QString>

#include "qt/QtText.h"

namespace tovrel {

Translations::Translations(std::string_view localeIdentifier) {
    const QString folder = QStringLiteral(":/i18n");
    const QLocale locale = localeIdentifier.empty()
                               ? QLocale()
                               : QLocale(QString::fromUtf8(localeIdentifier.data(),
                                                           static_cast<qsizetype>(localeIdentifier.size())));
    // Qt asks the translator that was installed last first.
    if (english_.load(QStringLiteral("tovrel_en"), folder)) {
        QCoreApplication::installTranslator(&english_);
    }
    if (language_.load(locale, QStringLiteral("tovrel"), QStringLiteral("_"), folder)) {
        QCoreApplication::installTranslator(&language_);
    }
}

Translations::~Translations() {
    QCoreApplication::removeTranslator(&language_);
    QCoreApplication::removeTranslator(&english_);
}

LocalizedString localizedByQt() {
    return [](const char* context, const char* key) {
        return textFrom(QCoreApplication::translate(context, key));
    };
}

} // namespace tovrel
