#pragma once

#include <QFile>
#include <QString>
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

inline QString pathToQString(const std::string& path) {
  return QFile::decodeName(QByteArray::fromStdString(path));
}

inline std::string pathFromQString(const QString& path) {
  return QFile::encodeName(path).toStdString();
}

}  // namespace velra
