// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/FormFields.h"

#include <utility>

#include "base/Arithmetic.h"
#include "base/RunTimeError.h"
#include "forms/CrossLanguageFields.h"
#include "forms/FieldValues.h"
#include "forms/ctlSetOfString.h"
#include "schema/CloseList.h"
#include "schema/SEColl.h"

namespace velra {

namespace {

const std::vector<std::string>& itemsOfCloseList(const CloseLists& lists, const std::string& name) {
  const CloseList* list = lists.find(name);
  if (!list) raise(kInvalidArgument, name);
  return list->colItems;
}

}  // namespace

void FormFields::addFields(const SEColl& secol, CrossLanguageFields* crossLanguage) {
  std::size_t position = 0;
  for (const SchemaElement& field : secol) {
    ++position;
    if (!field.bValid() || !field.bIsHumanReadable() || field.bIgnore()) continue;
    if (crossLanguage && crossLanguage->addField(*this, field, position)) continue;
    addField(secol, field, position);
  }
}

void FormFields::addField(const SEColl& secol, const SchemaElement& field, std::size_t position) {
  const std::string& comment = field.strComment();
  const std::string& name = field.strName();
  const Value& content = field.vContent();
  const bool readOnly = field.bReadOnly();
  switch (field.tyType()) {
    case tyType::String:
    case tyType::Integer:
    case tyType::Real:
      AddTextBox(comment, name, toText(content), readOnly, position);
      return;
    case tyType::Date:
      AddDateBox(comment, name, toDate(content), readOnly, position);
      return;
    case tyType::Bool:
      AddCheck(comment, name, toBoolean(content), readOnly, position);
      return;
    case tyType::SetOfStrings:
      AddSetStrings(comment, name, toCollection(content), readOnly, position);
      return;
    case tyType::CloseList:
      AddCombo(comment, name, itemsOfCloseList(secol.closeLists(), field.strCloseList()),
               toText(content), readOnly, position);
      return;
    case tyType::ChunkTime:
    case tyType::WordList:
    case tyType::SetOfGUIDs:
    case tyType::Unknow:
      return;
  }
}

FieldBox& FormFields::AddTextBox(const std::string& comment, const std::string& name,
                                 const std::string& text, bool readOnly, std::size_t position) {
  FieldBox& box = addBox(ControlFamily::Text1, comment, name, readOnly, position);
  box.value = text;
  return box;
}

FieldBox& FormFields::AddSetStrings(const std::string& comment, const std::string& name,
                                    const StringList& strings, bool readOnly,
                                    std::size_t position) {
  FieldBox& box = addBox(ControlFamily::ctlSetOfString1, comment, name, readOnly, position);
  auto control = std::make_unique<ctlSetOfString>();
  control->setEnabled(!readOnly);
  const std::int16_t count = toInt16(static_cast<double>(strings.size()));
  control->Init(count);
  for (std::int16_t row = 1; row <= count; ++row) {
    control->setStrng(row, strings[static_cast<std::size_t>(row) - 1]);
  }
  box.rows = std::move(control);
  return box;
}

FieldBox& FormFields::AddDateBox(const std::string& comment, const std::string& name,
                                 const Date& date, bool readOnly, std::size_t position) {
  FieldBox& box = addBox(ControlFamily::DTPicker1, comment, name, readOnly, position);
  box.value = date;
  return box;
}

FieldBox& FormFields::AddCheck(const std::string& comment, const std::string& name, bool checked,
                               bool readOnly, std::size_t position) {
  FieldBox& box = addBox(ControlFamily::Check1, comment, name, readOnly, position);
  box.value = static_cast<std::int16_t>(checked ? 1 : 0);
  return box;
}

FieldBox& FormFields::AddCombo(const std::string& comment, const std::string& name,
                               const std::vector<std::string>& items, const std::string& text,
                               bool readOnly, std::size_t position) {
  FieldBox& box = addBox(ControlFamily::Combo1, comment, name, readOnly, position);
  box.items = items;
  box.value = text;
  return box;
}

FieldBox& FormFields::AddSetStringsCL(const std::string& comment, const std::string& name,
                                      std::unique_ptr<SetOfRows> rows, bool readOnly,
                                      std::size_t position) {
  FieldBox& box = addBox(ControlFamily::ctlSetOfStringCL1, comment, name, readOnly, position);
  box.rows = std::move(rows);
  return box;
}

FieldBox& FormFields::addBox(ControlFamily family, const std::string& comment,
                             const std::string& name, bool readOnly, std::size_t position) {
  FieldBox& box = colControls_.emplace_back();
  box.family = family;
  box.element = ++counters_[static_cast<std::size_t>(family)];
  box.number = Count();
  box.strComment = comment;
  box.strName = name;
  box.bReadOnly = readOnly;
  box.Tag = position;
  return box;
}

}  // namespace velra
