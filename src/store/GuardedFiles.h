// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/files/Files.h"
#include "platform/files/OwnFile.h"

namespace velra {

class DocumentRescue;
class MessageCatalogue;
enum class Message : int;

/// What an open document may do to files: it writes and deletes its own, and of others it writes
/// those that it was opened with. What another program has written into a file since it was read is
/// kept in the store before that file is written over or goes. All paths are absolute.
class GuardedFiles {
 public:
  /// The document whose files they are; before that all may be written and deleted.
  void setDocument(const std::string& path);
  /// A file that a person has chosen to be written over.
  void setChosen(const std::string& path) { chosen_ = path; }

  /// Makes room for what is to be noted of so many files.
  void reserve(std::size_t files) { contents_.reserve(files); }

  /// What a file held when it was read, or written last: `contentPrint` of it. As long as it has
  /// the stamp that it had then, it need not be read again.
  void noteContent(const std::string& path, std::uint64_t print, const FileStamp& stamp = {});
  /// The same for a picture, by its stamp alone: tens of thousands are not read to the end.
  void noteStamp(const std::string& path, const FileStamp& stamp);

  /// Keeps the bytes of a file that is to be written over or to go, when they are not what was read
  /// or written last. Without a store they cannot be kept.
  void spare(const std::string& path, std::string_view bytes, DocumentRescue* rescue);
  /// The same for a file that is to go. Its stamp; nothing for a file that does not belong to the
  /// document and stays.
  std::optional<FileStamp> goes(const std::string& path, DocumentRescue* rescue);

  /// Why a file may not be written, or "".
  std::string strWhyNotWrite(const std::string& path);

  /// Sentences on all that was unusual since the last call, each file once; "" for nothing.
  std::string strTakeNotes(const MessageCatalogue& messages);

 private:
  struct Content {
    std::uint64_t print;
    std::uint64_t stamp;  // a print of it, too; 0 when it is not known
  };

  void spareBefore(const std::string& path, const FileStamp& present, DocumentRescue* rescue);
  bool spare(const std::string& path, std::string_view bytes, Content& known,
             DocumentRescue* rescue);
  bool bKept(const std::string& path, std::string_view bytes, DocumentRescue* rescue);

  /// One kind of event, told in one sentence however many files there are.
  class Note {
   public:
    /// `once`: what has been told of a file is not told again.
    explicit Note(bool once) : once_(once) {}
    void add(const std::string& path);
    /// The first file, how many others, and what is to be said of them.
    std::string strTake(const MessageCatalogue& messages, Message sentence);

   private:
    const bool once_;
    std::set<std::string> told_;
    std::string first_;
    std::size_t others_ = 0;
  };

  std::optional<OwnFiles> own_;
  std::string document_;
  std::string chosen_;
  // By a print of the path, since a large document has many.
  std::unordered_map<std::uint64_t, Content> contents_;
  std::unordered_map<std::uint64_t, FileStamp> stamps_;
  Note kept_{false};
  Note lost_{false};
  Note outside_{true};
  Note left_{true};
};

}  // namespace velra
