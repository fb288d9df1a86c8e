// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/DocumentFiles.h"

#include "base/Text.h"

namespace velra::test {

namespace {

std::string escaped(const std::string& text) {
  return replaceAll(replaceAll(text, "&", "&amp;"), "<", "&lt;");
}

std::string element(const std::string& name, const std::string& content) {
  return content.empty() ? "<" + name + "/>" : "<" + name + ">" + content + "</" + name + ">";
}

}  // namespace

ObjectText& ObjectText::text(const std::string& field, const std::string& value) {
  return raw(element(field, escaped(value)));
}

ObjectText& ObjectText::guids(const std::string& field, const std::vector<std::string>& values) {
  std::string members;
  for (const std::string& value : values) members += element("GUID", escaped(value));
  return values.empty() ? *this : raw(element(field, members));
}

ObjectText& ObjectText::span(const std::string& field, int start, int end,
                             const std::string& file) {
  const std::string open = field + " start=\"" + std::to_string(start) + "\" end=\"" +
                           std::to_string(end) + "\" reasons=\"0\"";
  if (file.empty()) return raw("<" + open + "/>");
  return raw("<" + open + ">" + escaped(file) + "</" + field + ">");
}

ObjectText& ObjectText::raw(const std::string& xml) {
  content_ += xml;
  return *this;
}

std::string ObjectText::xml() const {
  const std::string root = "<" + className_ +
                           " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\""
                           " xsi:noNamespaceSchemaLocation=\"small.xsd\"";
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + root +
         (content_.empty() ? "/>\n" : ">" + content_ + "</" + className_ + ">\n");
}

std::string DocumentFiles::relativePath(const std::string& name) {
  return name == "film" ? "film.xml" : "film_files/film_" + name + ".xml";
}

std::string DocumentFiles::id(const std::string& name) const {
  if (name.empty()) return {};
  return kind_ == Identifiers::Absolute ? path(name) : relativePath(name);
}

std::vector<std::string> DocumentFiles::ids(const std::vector<std::string>& names) const {
  std::vector<std::string> result;
  for (const std::string& name : names) result.push_back(id(name));
  return result;
}

std::string DocumentFiles::classOf(const std::string& name) {
  std::string letters = name.substr(0, name.find_first_of("0123456789"));
  if (letters == "film") return "AVDocument";
  letters[0] = static_cast<char>(letters[0] - 'a' + 'A');
  return letters;
}

void DocumentFiles::write(const std::string& name, const ObjectText& object) const {
  folder_.write(relativePath(name), object.xml());
}

void DocumentFiles::writeRaw(const std::string& fileName, const std::string& bytes) const {
  folder_.write("film_files/" + fileName, bytes);
}

void DocumentFiles::document(const std::vector<std::string>& versions) const {
  write("film", ObjectText("AVDocument")
                    .text("Title", "Film")
                    .text("AVDocGUID", id("film"))
                    .guids("ExpressedBy", ids(versions)));
}

void DocumentFiles::version(const std::string& name, const std::vector<std::string>& media) const {
  write(name, ObjectText("Version")
                  .text("VersionTitle", name)
                  .text("VersionGUID", id(name))
                  .guids("ManifestedBy", ids(media)));
}

void DocumentFiles::media(const std::string& name, const std::vector<std::string>& storages) const {
  write(name, ObjectText("Media")
                  .text("Format", name)
                  .text("MediaGUID", id(name))
                  .guids("AvailableAs", ids(storages)));
}

void DocumentFiles::storage(const std::string& name, const std::string& collocation) const {
  write(name, ObjectText("Storage").text("Collocation", collocation).text("StorageGUID", id(name)));
}

void DocumentFiles::mainExpression(const std::string& name, const std::string& version) const {
  const std::string className = classOf(name);
  write(name, ObjectText(className)
                  .text("Title", name)
                  .text("VersionGUID", id(version))
                  .span("Time", 0, 60000)
                  .text(className + "GUID", id(name)));
}

void DocumentFiles::segment(const std::string& name, const std::string& parent, int start, int end,
                            const std::string& followedBy) const {
  const std::string className = classOf(name);
  ObjectText object(className);
  object.text("Title", name).span("Time", start, end).text(className + "GUID", id(name));
  object.text("PartOf" + className, id(parent));
  if (!followedBy.empty()) object.text("FollowedBy" + className, id(followedBy));
  write(name, object);
}

void DocumentFiles::smallLadder() const {
  document({"version1"});
  version("version1", {"media1"});
  media("media1", {"storage1"});
  storage("storage1", "no such movie.mpg");
  for (const char* name : {"video1", "audio1", "transcript1"}) mainExpression(name, "version1");
}

}  // namespace velra::test
