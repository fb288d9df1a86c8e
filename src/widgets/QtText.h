// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QString>
#include <QTextDocument>
#include <string>
#include <string_view>

namespace velra {

// Below the windows a text is UTF-8 in a std::string, and a path is bytes.

inline QString toQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string fromQString(const QString& text) {
  return text.toStdString();
}

/// For a place of one line, which would take seconds to measure a text of megabytes.
inline QString lineText(std::string_view text) {
  constexpr qsizetype kMostLetters = 2000;
  constexpr std::size_t kMostBytes = 4 * kMostLetters;
  const QString start = toQString(text.substr(0, kMostBytes));
  const bool whole = start.size() <= kMostLetters && text.size() <= kMostBytes;
  return whole ? start : start.left(kMostLetters) + QChar(0x2026);
}

/// For a tool tip, which would take some texts for HTML.
inline QString plainToolTip(std::string_view text) {
  const QString plain = toQString(text);
  return Qt::mightBeRichText(plain) ? Qt::convertFromPlainText(plain) : plain;
}

/// For a window's title, in which "[*]" would be taken for the place of a mark.
inline QString windowTitleText(std::string_view text) {
  return toQString(text).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

/// For the title of a window that a menu entry opens: its caption without the marks.
inline QString titleFromCaption(std::string_view caption) {
  return toQString(caption).remove(u'&').remove(QStringLiteral("..."));
}

inline QString pathToQString(const std::string& path) {
  return QFile::decodeName(QByteArray::fromStdString(path));
}

inline std::string pathFromQString(const QString& path) {
  return QFile::encodeName(path).toStdString();
}

}  // namespace velra
