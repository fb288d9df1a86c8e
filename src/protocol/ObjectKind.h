// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velra {

/// What a document is made of. All but a MediaObject have fields and a file of their own.
enum class ObjectKind : std::uint8_t {
  AVDocument,
  Version,
  Media,
  Storage,
  Video,
  Audio,
  Transcript,
  MediaObject
};

constexpr bool isExpression(ObjectKind kind) {
  return kind == ObjectKind::Video || kind == ObjectKind::Audio || kind == ObjectKind::Transcript;
}

/// The name of the class, as files, their names and messages have it.
const std::string& classNameOf(ObjectKind kind);

/// The kind of object that lies in a file with a root of this name; nothing for any other root.
std::optional<ObjectKind> kindOfRoot(std::string_view className);

}  // namespace velra
