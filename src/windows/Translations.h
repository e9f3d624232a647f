#pragma once

#include <QTranslator>
#include <string_view>

#include "support/LocalizedString.h"

namespace tovrel {

/// The program's texts in the user's language, as far as they are translated; the rest is in English. Must be
/// made after the application object and before every view, and destroyed before that object.
class Translations {
  public:
    /// Loads the texts for a locale such as "de_DE". An empty identifier stands for the environment's locale
    /// (LANGUAGE, LC_ALL, LC_MESSAGES, LANG).
    explicit Translations(std::string_view localeIdentifier);
    ~Translations();
    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

  private:
    QTranslator english_; ///< The texts for keys that are not texts themselves.
    QTranslator language_;
};

/// Translates with the translations that are loaded when it is called.
[[nodiscard]] LocalizedString localizedByQt();

} // namespace tovrel
