// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/mman.h>
#include <sys/types.h>

#include <functional>
#include <map>
#include <new>
#include <string>

#include "support/DocumentSession.h"

namespace velra::test {

/// What a child process tells, though it may be killed.
struct Report {
  volatile int calls;
  char trouble[2'000];
  char content[100'000];

  /// Adds a line to what went wrong.
  void complain(const std::string& text);
};

/// Something that a child process shares with its parent, all zero at first.
template <class Content>
class Shared {
 public:
  Shared()
      : content_(::mmap(nullptr, sizeof(Content), PROT_READ | PROT_WRITE,
                        MAP_SHARED | MAP_ANONYMOUS, -1, 0)) {
    if (content_ == MAP_FAILED) throw std::bad_alloc();
  }
  ~Shared() { ::munmap(content_, sizeof(Content)); }
  Shared(const Shared&) = delete;
  Shared& operator=(const Shared&) = delete;

  Content* operator->() const { return static_cast<Content*>(content_); }
  Content& operator*() const { return *static_cast<Content*>(content_); }

 private:
  void* content_;
};

/// A document in a folder of its own with its store, on which child processes work.
class Experiment {
 public:
  /// A small ladder with segments whose pictures come from a movie.
  Experiment();

  DocumentSession session;
  const std::string copyPath = session.folder / "copy.xml";
  const std::string settingsPath = session.folder / "velra.ini";
  const std::string storePath = session.folder / "state/rescue.sqlite";

  /// The files as they were at first, or as given.
  void restore() { restore(atFirst_); }
  void restore(const std::map<std::string, std::string>& files);
  const std::map<std::string, std::string>& filesAtFirst() const { return atFirst_; }

  /// Starts a process; it complains when the work raises something.
  pid_t start(Report& report, const std::function<void()>& work) const;
  /// Waits for its end; false when it was killed.
  static bool ended(pid_t child);

  /// Opens a document with the store in a fresh process, as the next start of the program does, and
  /// writes down what it holds, or complains.
  void read(Report& report, const std::string& path);

 private:
  std::map<std::string, std::string> atFirst_;
};

/// What a document holds, whatever its files are called: a line for each object, sorted.
std::string contentOf(AVDocument& document);

}  // namespace velra::test
