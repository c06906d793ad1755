// Texts of the program (UTF-8) as texts of Qt, and twips as logical pixels.
#pragma once

#include <QString>
#include <cmath>
#include <string>

namespace kolvar {

inline QString shown(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
// A caption for a widget that takes "&" as the mark of a mnemonic.
inline QString shown_caption(const std::string& text) {
    return shown(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}
inline std::string utf8(const QString& text) { return text.toStdString(); }

inline constexpr int twips_per_pixel = 15;
inline int pixels(int twips) { return static_cast<int>(std::lround(static_cast<double>(twips) / twips_per_pixel)); }

}  // namespace kolvar
