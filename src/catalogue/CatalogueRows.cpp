// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/CatalogueRows.h"

#include <map>
#include <optional>
#include <utility>

#include "base/Text.h"
#include "exchange/Content.h"
#include "exchange/ContentText.h"
#include "exchange/Cues.h"
#include "exchange/FieldTypeNames.h"
#include "exchange/SegmentChoice.h"

namespace velra {

namespace {

Cell whole(std::size_t number) {
  return number == kNoContent ? Cell() : Cell(static_cast<std::int64_t>(number));
}

// Paths may be no UTF-8, which the databases refuse.
Cell textCell(const std::string& text) {
  if (isUtf8(text)) return text;
  std::string plain = text;
  for (char& c : plain) {
    if (static_cast<unsigned char>(c) > 0x7F) c = '?';
  }
  return plain;
}

Cell textOrNothing(const std::string& text) {
  return text.empty() ? Cell() : textCell(text);
}

/// Makes the rows of one document, object by object.
class RowMaker {
 public:
  RowMaker(const Content& content, CatalogueDocument& document)
      : content_(content), document_(document) {
    for (std::size_t i = 0; i < content.objects.size(); ++i) {
      numbers_.emplace(content.objects[i].identifier, i);
    }
  }

  void addObject(std::size_t number) {
    object_ = number;
    const ContentObject& object = content_.objects[number];
    add(CatalogueTableId::Object,
        {classNameOf(object.kind), textCell(object.identifier), textCell(object.title),
         whole(object.parent), whole(object.version), std::int64_t{object.number},
         textOrNothing(object.movie), textOrNothing(object.picture)});
    if (object.time) addSegment(object);
    addPassage("Title", "", object.title);
    for (const ContentField& field : object.fields) {
      if (field.assigned) addField(object, field);
    }
  }

 private:
  void add(CatalogueTableId table, CatalogueRow cells) {
    cells.insert(cells.begin(), whole(object_));
    document_.rows[static_cast<std::size_t>(table)].push_back(std::move(cells));
  }

  void addSegment(const ContentObject& object) {
    const auto& [start, end] = *object.time;
    add(CatalogueTableId::Segment,
        {std::int64_t{object.level}, start, end,
         object.frameRate > 0 ? Cell(object.frameRate) : Cell(),
         timeCodeOf(start, object.frameRate), timeCodeOf(end, object.frameRate)});
  }

  void addPassage(const std::string& name, const std::string& language, const std::string& text,
                  std::optional<double> start = {}) {
    if (text.empty()) return;
    const ContentObject& object = content_.objects[object_];
    if (!start && object.time) start = object.time->start;
    add(CatalogueTableId::Passage,
        {textCell(name), language, start ? Cell(*start) : Cell(), textCell(text)});
  }

  void addField(const ContentObject& object, const ContentField& field) {
    // The segments of a transcript hold the same words once more.
    if (field.type == tyType::WordList) return object.level == 0 ? addWords(field) : void();
    for (std::size_t i = 0; i < field.texts.size(); ++i) {
      if (isRelation(field, field.texts[i])) {
        addRelation(field, i);
      } else {
        addText(object, field, i);
      }
    }
    if (field.span && !field.linking) {
      const std::string span = secondsText(field.span->start) + "-" + secondsText(field.span->end);
      addFieldRow(field, field.texts.size(), "", span);
    }
  }

  // Fields that no form shows count as linking, too, but may hold a person's words.
  bool isRelation(const ContentField& field, const std::string& text) const {
    return field.linking && (field.type == tyType::SetOfGUIDs || numbers_.contains(text));
  }

  void addRelation(const ContentField& field, std::size_t position) {
    const std::string& identifier = field.texts[position];
    const auto target = numbers_.find(identifier);
    add(CatalogueTableId::Relation, {textCell(field.name), whole(position), textCell(identifier),
                                     target == numbers_.end() ? Cell() : whole(target->second)});
  }

  void addFieldRow(const ContentField& field, std::size_t position, const std::string& language,
                   const std::string& text) {
    add(CatalogueTableId::Field, {textCell(field.name), fieldTypeName(field.type), whole(position),
                                  language, textCell(text)});
  }

  void addText(const ContentObject& object, const ContentField& field, std::size_t position) {
    const std::string& text = field.texts[position];
    const bool spoken = field.type != tyType::Bool && !field.span && text != object.title;
    const bool translated =
        position < field.translations.size() && !field.translations[position][0].empty();
    if (!translated) {
      addFieldRow(field, position, "", text);
      if (spoken) addPassage(field.name, "", text);
      return;
    }
    for (std::size_t language = 0; language < kContentLanguages.size(); ++language) {
      const std::string& name = field.translations[position][language];
      addFieldRow(field, position, kContentLanguages[language], name);
      addPassage(field.name, kContentLanguages[language], name);
    }
  }

  void addWords(const ContentField& field) {
    std::size_t number = 0;
    const std::vector<ContentWord> words = spoken(field.words);
    for (const ContentWord& word : words) {
      add(CatalogueTableId::Word, {whole(number++), word.start, word.end, textCell(word.text)});
    }
    // What is said together is found together.
    for (const Cue& cue : cuesOf(words)) {
      std::string text;
      for (const std::string& line : cue.lines) text += (text.empty() ? "" : " ") + line;
      addPassage("Words", "", text, cue.start);
    }
  }

  const Content& content_;
  CatalogueDocument& document_;
  std::map<std::string, std::size_t> numbers_;  // of objects, by their identifiers
  std::size_t object_ = 0;
};

}  // namespace

CatalogueDocument catalogueDocument(const Content& content, const std::string& stamp) {
  CatalogueDocument document{content.path, stamp, content.document().title, {}};
  RowMaker maker(content, document);
  for (std::size_t i = 0; i < content.objects.size(); ++i) maker.addObject(i);
  return document;
}

}  // namespace velra
