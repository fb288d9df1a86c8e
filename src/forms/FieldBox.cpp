// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/FieldBox.h"

#include <utility>

#include "forms/FormTabs.h"

namespace velra {

namespace {

const char* familyName(ControlFamily family) {
  switch (family) {
    case ControlFamily::Text1:
      return "Text1";
    case ControlFamily::Check1:
      return "Check1";
    case ControlFamily::Combo1:
      return "Combo1";
    case ControlFamily::DTPicker1:
      return "DTPicker1";
    case ControlFamily::ctlSetOfString1:
      return "ctlSetOfString1";
    case ControlFamily::ctlSetOfStringCL1:
      return "ctlSetOfStringCL1";
  }
  return "";
}

}  // namespace

std::string FieldBox::controlName() const {
  std::string name = familyName(family);
  if (family != ControlFamily::ctlSetOfStringCL1) name += "_" + std::to_string(element);
  return name;
}

std::string FieldBox::frameName() const {
  return "Frame1_" + std::to_string(number);
}

int FieldBox::slot() const {
  return (number - 1) % kBoxesOfATab;
}

void FieldBox::show(Value newValue) {
  value = std::move(newValue);
  if (onChange) onChange();
}

}  // namespace velra
