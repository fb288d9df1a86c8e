#include "store/ReferenceIndex.h"

#include <algorithm>

#include "base/Paths.h"
#include "store/ObjectRegistry.h"

namespace velra {

class ReferenceIndex::Collector : public ReferenceVisitor {
 public:
  Collector(ReferenceIndex& index, std::size_t holder) : index_(index), holder_(holder) {}

  void identifier(const std::string& guid) override { note(index_.byGuid_[strAbsolutePath(guid)]); }
  void object(const DescribedObject& object) override { note(index_.byObject_[&object]); }

 private:
  void note(Holders& holders) const {
    if (holders.empty() || holders.back() != holder_) holders.push_back(holder_);
  }

  ReferenceIndex& index_;
  std::size_t holder_;
};

ReferenceIndex::ReferenceIndex(const ObjectRegistry& objects) : holders_(objects.all()) {
  for (std::size_t i = 0; i < holders_.size(); ++i) {
    offsets_.emplace(holders_[i].get(), i);
    Collector collector(*this, i);
    holders_[i]->visitReferences(collector);
  }
}

ObjectList ReferenceIndex::listOf(Holders offsets) const {
  std::sort(offsets.begin(), offsets.end());
  offsets.erase(std::unique(offsets.begin(), offsets.end()), offsets.end());
  ObjectList list;
  list.reserve(offsets.size());
  for (const std::size_t offset : offsets) list.push_back(holders_[offset]);
  return list;
}

ObjectList ReferenceIndex::holdersOf(const std::string& guid) const {
  const auto found = byGuid_.find(strAbsolutePath(guid));
  return found == byGuid_.end() ? ObjectList{} : listOf(found->second);
}

ObjectList ReferenceIndex::holdersOf(const DescribedObject& object) const {
  Holders offsets;
  if (const auto found = byGuid_.find(strAbsolutePath(object.strGUID())); found != byGuid_.end()) {
    offsets = found->second;
  }
  if (const auto found = byObject_.find(&object); found != byObject_.end()) {
    offsets.insert(offsets.end(), found->second.begin(), found->second.end());
  }
  return listOf(std::move(offsets));
}

void ReferenceIndex::update(const ObjectRef& holder) {
  const auto offset = offsets_.find(holder.get());
  if (offset == offsets_.end()) return;
  Collector collector(*this, offset->second);
  holder->visitReferences(collector);
}

void ReferenceIndex::renamed(const std::string& oldGUID, const std::string& newGUID) {
  const auto old = byGuid_.find(strAbsolutePath(oldGUID));
  if (old == byGuid_.end()) return;
  const Holders moved = old->second;
  Holders& target = byGuid_[strAbsolutePath(newGUID)];
  target.insert(target.end(), moved.begin(), moved.end());
}

}  // namespace velra
