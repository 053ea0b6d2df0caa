#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace hullwright {

inline QString ToQString(std::u16string_view text)
{
  return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

inline QString ToQString(std::string_view latin)
{
  return QString::fromLatin1(latin.data(), static_cast<qsizetype>(latin.size()));
}

/// A text of the user's as a menu's entry shows it, where '&' marks the access key.
inline QString AsMenuText(QString text)
{
  return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

inline std::u16string ToWide(const QString& text) { return text.toStdU16String(); }

}  // namespace hullwright
