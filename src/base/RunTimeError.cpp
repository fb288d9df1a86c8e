// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/RunTimeError.h"

namespace velra {

namespace {

const char* usualDescription(ErrorNumber number) {
  switch (number) {
    case kInvalidArgument:
      return "An argument is not valid";
    case kOverflow:
      return "Overflow: a number is too large for its place";
    case kSubscriptOutOfRange:
      return "A position lies outside the list";
    case kDivisionByZero:
      return "Division by zero";
    case kTypeMismatch:
      return "A value is of the wrong type";
    case kOutOfStack:
      return "The objects are nested too deep";
    case kFileNotFound:
      return "File not found";
    case kFileAlreadyExists:
      return "The file already exists";
    case kDiskFull:
      return "The disk is full";
    case kPermissionDenied:
      return "Permission denied";
    case kPathNotFound:
      return "Path not found";
    case kNoObject:
      return "There is no object to work on";
    case kFormUnloaded:
      return "The form was closed while it loaded";
    case kDuplicateKey:
      return "The key already belongs to a member of the list";
    case kInvalidPicture:
      return "The file holds no valid picture";
  }
  return "Run-time error";
}

}  // namespace

RunTimeError::RunTimeError(int number, const std::string& description)
    : std::runtime_error(description), number_(number) {}

RunTimeError RunTimeError::inFile(const std::string& path) const {
  if (namesFile_) return *this;
  RunTimeError named(number_, description() + " (" + path + ")");
  named.namesFile_ = true;
  return named;
}

void raise(ErrorNumber number) {
  throw RunTimeError(number, usualDescription(number));
}

void raise(ErrorNumber number, const std::string& about) {
  throw RunTimeError(number, std::string(usualDescription(number)) + ": " + about);
}

}  // namespace velra
