#include "store/PlainOpening.h"

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "platform/Files.h"
#include "platform/XmlDocument.h"
#include "protocol/ClassRules.h"

namespace velra::test {

namespace {

bool wanted(const std::string& className, const std::string& wantedClass) {
  return wantedClass.empty() ? isExpressionClass(className) : className == wantedClass;
}

bool pointsAt(const PlainObject& object, const std::string& ofClass, bool partOf,
              const std::string& guid) {
  if (!partOf) return ofClass == "Version" && bSamePath(object.text("versionguid"), guid);
  return ofClass == object.className &&
         bSamePath(object.text(findClassRules(ofClass)->partOfField), guid);
}

void linkFollowers(const std::vector<PlainObject*>& segments) {
  for (const PlainObject* candidate : segments) {
    for (PlainObject* segment : segments) {
      if (!candidate || !segment) raise(kNoObject);
      const ClassRules* rules = findClassRules(segment->className);
      if (bSamePath(candidate->guid, segment->text(rules->followedByField))) {
        segment->next = const_cast<PlainObject*>(candidate);
      }
    }
  }
}

}  // namespace

std::string PlainObject::text(const std::string& lowerName) const {
  const auto field = fields.find(lowerName);
  return field == fields.end() ? std::string() : field->second.front();
}

std::string PlainOpening::open(const std::string& path) {
  return openWhole(*newObject("AVDocument"), path);
}

PlainObject* PlainOpening::newObject(const std::string& className) {
  objects_.push_back(std::make_unique<PlainObject>());
  objects_.back()->className = className;
  return objects_.back().get();
}

std::string PlainOpening::read(PlainObject& object, const std::string& path) const {
  if (!bFileExists(path)) return message(1131) + " " + path;
  XmlDocument document;
  if (!document.load(path)) return "XML Parser: " + document.reason();
  const XmlNode root = document.documentElement();
  if (root.baseName() != object.className) return object.className + ": " + message(1090);
  for (XmlNode node = root.firstElement(); node; node = node.nextElement()) {
    auto& values = object.fields[toLower(node.nodeName())];
    for (XmlNode item = node.firstElement(); item; item = item.nextElement()) {
      values.push_back(item.text());
    }
    if (values.empty()) values.push_back(node.text());
  }
  object.guid = path;
  object.title = object.text(toLower(findClassRules(object.className)->titleField));
  return {};
}

std::string PlainOpening::load(PlainObject& object, const std::string& path) {
  std::string failure = read(object, path);
  if (!failure.empty()) return failure;
  registry.push_back(&object);
  if (object.className == "Storage") {
    registry.push_back(newObject("MediaObject"));
    registry.back()->guid = object.title;
  }
  if (object.className == "Video" && object.mainExpr) makeKeyFrame(object);
  return {};
}

// The movie is never there, so that the picture stays without a path.
void PlainOpening::makeKeyFrame(const PlainObject& video) {
  registry.push_back(newObject("MediaObject"));
  for (const PlainObject* media : video.version->children) {
    for (const PlainObject* storage : media->children) {
      if (storage->title.empty()) continue;
      if (notFound_.insert(storage->title).second) {
        shown.push_back("ok-cancel: " + storage->title + " " + message(1092));
      }
      return;
    }
  }
}

std::string PlainOpening::openWhole(PlainObject& object, const std::string& path) {
  std::string failure = load(object, path);
  if (!failure.empty()) return failure;
  statusTexts.push_back(message(1136) + " " + std::to_string(registry.size()) + " (" +
                        object.title + ")");
  openChildren(object);
  if (object.className == "Version") openExpressions(object);
  if (isExpressionClass(object.className)) openSegments(object);
  return {};
}

void PlainOpening::openChildren(PlainObject& object) {
  const ClassRules* rules = findClassRules(object.className);
  const auto relation = object.fields.find(rules->relationField);
  if (rules->relationField.empty() || relation == object.fields.end()) return;
  std::set<std::string> keys;
  for (const std::string& guid : relation->second) {
    PlainObject* child = childOf(rules->childClass, guid);
    if (!child) continue;
    const bool keyed = child->className == "Storage" && !child->title.empty();
    if (keyed && !keys.insert(child->title).second) raise(kDuplicateKey);
    object.children.push_back(child);
  }
}

PlainObject* PlainOpening::childOf(const std::string& childClass, const std::string& guid) {
  if (PlainObject* known = loaded(guid)) {
    if (known->className == childClass) return known;
    shown.push_back("plain: " + childClass + ": " + message(1090));
    return nullptr;
  }
  PlainObject* child = newObject(childClass);
  const std::string failure =
      childClass == "Storage" ? load(*child, guid) : openWhole(*child, guid);
  if (failure.empty()) return child;
  shown.push_back("exclamation: " + failure);
  return nullptr;
}

void PlainOpening::openExpressions(PlainObject& version) {
  for (const Record& record : scan(version.guid, "Version", false, "")) {
    if (loaded(record.guid)) continue;
    PlainObject* found = newObject(record.className);
    found->version = &version;
    openWhole(*found, record.guid);
  }
}

void PlainOpening::openSegments(PlainObject& parent) {
  PlainObject* last = nullptr;
  std::vector<PlainObject*> found;
  for (const Record& record : scan(parent.guid, parent.className, true, parent.className)) {
    if (!loaded(record.guid)) {
      last = newObject(parent.className);
      last->mainExpr = &parent;
      last->version = parent.version;
      openWhole(*last, record.guid);
    } else if (parent.className != "Video") {
      raise(kTypeMismatch);
    }
    found.push_back(last);
  }
  parent.segments = found;
  linkFollowers(parent.segments);
}

std::vector<PlainOpening::Record> PlainOpening::scan(const std::string& guid,
                                                     const std::string& ofClass, bool partOf,
                                                     const std::string& wantedClass) {
  std::vector<Record> records;
  std::string folder;
  const std::string ownName = strSplitPath(guid, folder) + ".xml";
  for (const std::string& name : colListFiles(folder + "*.xml")) {
    if (name == ownName) continue;
    const std::string path = folder + name;
    PlainObject* object = loaded(path);
    const std::string className = object ? object->className : whatIs(path);
    if (!wanted(className, wantedClass)) continue;
    if (!object) {
      object = newObject(className);
      const std::string failure = read(*object, path);
      if (!failure.empty()) {
        shown.push_back("plain: " + failure);
        continue;
      }
    }
    if (pointsAt(*object, ofClass, partOf, guid)) records.push_back({className, object->guid});
  }
  return records;
}

std::string PlainOpening::whatIs(const std::string& path) {
  XmlDocument document;
  if (document.load(path)) return std::string(document.documentElement().baseName());
  shown.push_back("exclamation: XML Parser: " + document.reason());
  return {};
}

PlainObject* PlainOpening::loaded(const std::string& guid) const {
  for (PlainObject* object : registry) {
    if (strAbsolutePath(object->guid) == strAbsolutePath(guid)) return object;
  }
  return nullptr;
}

}  // namespace velra::test
