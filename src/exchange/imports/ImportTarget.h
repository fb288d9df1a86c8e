// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>

#include "exchange/imports/ImportFormat.h"
#include "protocol/Expression.h"

namespace velra {

class AVDocument;
class Version;

/// Where the rows of a file go. The current folder is the document's. Every member raises
/// ExchangeFailure with a sentence for what is not there.
class ImportTarget {
 public:
  ImportTarget(AVDocument& document, const ImportFormat& format, const ImportOptions& options);

  /// The expression for rows of a class, or for those that tell none. Null when the Version has
  /// none of the class, and for rows of another class than the one expression that was named.
  ExpressionRef expressionFor(std::optional<ObjectKind> kind) const;

  /// True when rows of the class are not meant.
  bool passesOver(std::optional<ObjectKind> kind) const {
    return named_ && kind && *kind != named_->kind();
  }

  /// Pictures per second; 0 when nothing tells.
  double rate() const;

 private:
  void findNamed(AVDocument& document, const std::string& name);
  ExpressionRef usual() const;

  const ImportFormat& format_;
  const ImportOptions& options_;
  ExpressionRef named_;
  std::shared_ptr<Version> version_;
};

}  // namespace velra
