#pragma once

#include <QString>

namespace ravelo {

/// Translates all texts that are made from now on into a language of `AppSettings::language`; dates
/// and numbers follow by Qt's default locale. Nothing is loaded if it is empty. Call once, before
/// the interface is loaded; main thread.
void useLanguage(const QString& language);

} // namespace ravelo
