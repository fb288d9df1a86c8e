// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "protocol/ObjectKind.h"
#include "schema/FieldDeclaration.h"

namespace velra {

/// A span of the movie in seconds.
struct ContentSpan {
  double start = 0;
  double end = 0;
};

/// A word of a transcript and when it is spoken, in seconds.
struct ContentWord {
  double start = 0;
  double end = 0;
  std::string text;
};

/// The languages of the vocabulary, in the order of `ContentField::translations`.
inline constexpr std::array<const char*, 5> kContentLanguages{"en", "it", "nl", "de", "fr"};
using Translations = std::array<std::string, kContentLanguages.size()>;

/// One field that the schema gives an object.
struct ContentField {
  std::string name;
  tyType type = tyType::String;
  bool assigned = false;
  bool linking = false;  // tells how objects hang together, and nothing of what they describe
  /// What it holds: one text, or one for each member of a set; of a span the file that goes with
  /// it, if any; of references the identifiers as `ContentObject` has them.
  std::vector<std::string> texts;
  std::optional<ContentSpan> span;
  std::vector<ContentWord> words;
  /// For a field of the vocabulary: each of `texts` in all languages, or empty ones where it is
  /// none of the vocabulary's names. English is never empty else.
  std::vector<Translations> translations;
};

/// The number of no object.
inline constexpr std::size_t kNoContent = std::numeric_limits<std::size_t>::max();

/// One object as exports see it.
struct ContentObject {
  ObjectKind kind = ObjectKind::AVDocument;
  /// The path of its file: from the document's folder on where it lies below, else absolute.
  std::string identifier;
  std::string title;
  std::size_t parent = kNoContent;   // what it stands below; nothing for the document alone
  std::size_t version = kNoContent;  // the Version that it belongs to, or is
  int level = 0;                     // of an expression: 0 for a main one, 1 for its segments ...
  int number = 1;                    // its place among those below its parent, in chain order
  std::optional<ContentSpan> time;   // of an expression
  std::vector<ContentField> fields;  // all of its class, assigned or not, in the schema's order
  std::string movie;                 // absolute path; of a Storage, or what plays for the others
  std::string picture;               // absolute path of a key frame's picture
  double frameRate = 0;              // of the Version's main Video; 0 when it is not assigned

  /// The first assigned field of a name; null when there is none.
  const ContentField* field(const std::string& name) const;
  /// Its first text; "" when there is none.
  std::string text(const std::string& name) const;
};

/// All that a document says, read once for whatever is made of it. Each object stands before what
/// is below it, and that before all else: the document, then each Version with its Media, their
/// Storages, and the trees of its main Video, Audio and Transcript in chain order.
struct Content {
  std::string path;    // of the document's own file, absolute
  std::string schema;  // of the schema's
  std::vector<ContentObject> objects;

  const ContentObject& document() const { return objects.front(); }
  /// Those directly below an object, in order.
  std::vector<const ContentObject*> below(const ContentObject& object) const;
  /// Its number in `objects`.
  std::size_t numberOf(const ContentObject& object) const;
  /// The absolute path of an object's file.
  std::string fileOf(const ContentObject& object) const;
};

}  // namespace velra
