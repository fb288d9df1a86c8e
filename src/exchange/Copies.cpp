// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/Copies.h"

namespace velra {

std::vector<Copy> copiesOf(const Content& content, const ContentObject& version) {
  std::vector<Copy> copies;
  for (const ContentObject* media : content.below(version)) {
    if (media->kind != ObjectKind::Media) continue;
    const auto storages = content.below(*media);
    if (storages.empty()) copies.push_back({{&version, media}, {}});
    for (const ContentObject* storage : storages) {
      copies.push_back({{&version, media, storage}, {}});
    }
  }
  for (Copy& copy : copies) {
    if (!copy.itself().movie.empty()) copy.facts = movieFacts(copy.itself().movie);
  }
  return copies;
}

}  // namespace velra
