// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>
#include <string>

namespace velra {

/// The numbers by which failures are told apart where they are caught, and shown.
enum ErrorNumber : int {
  kInvalidArgument = 5,
  kOverflow = 6,
  kSubscriptOutOfRange = 9,
  kDivisionByZero = 11,
  kTypeMismatch = 13,
  kOutOfStack = 28,
  kFileNotFound = 53,
  kFileAlreadyExists = 58,
  kDiskFull = 61,
  kPermissionDenied = 70,
  kPathNotFound = 76,
  kNoObject = 91,
  kFormUnloaded = 364,
  kDuplicateKey = 457,
  kInvalidPicture = 481,
};

/// A failure that its callers do not foresee. It is caught in one place at the top of the program,
/// and where a command can go on without what failed; everywhere else it passes through.
class RunTimeError : public std::runtime_error {
 public:
  RunTimeError(int number, const std::string& description);

  int number() const { return number_; }
  std::string description() const { return what(); }

  /// The same error, with the file that was being read behind its description; the first file that
  /// is named stays the only one.
  RunTimeError inFile(const std::string& path) const;

 private:
  int number_;
  bool namesFile_ = false;
};

/// Raises the error with its usual description.
[[noreturn]] void raise(ErrorNumber number);

/// The same, with what it is about behind the usual description.
[[noreturn]] void raise(ErrorNumber number, const std::string& about);

}  // namespace velra
