#include "resolution/tags.h"

namespace duskmarch {

void addtag(std::string& tags, std::string_view tag, int copies) {
  for (; copies > 0; --copies) tags += tag;
}

void removetag(std::string& tags, std::string_view tag) {
  if (const auto found = tags.find(tag); found != std::string::npos) {
    tags.erase(found, tag.size());
  }
}

void removeeverytag(std::string& tags, std::string_view tag) {
  replaceeverytag(tags, tag, "");
}

void replaceeverytag(std::string& tags, std::string_view tag, std::string_view replacement) {
  for (auto found = tags.find(tag); found != std::string::npos;
       found = tags.find(tag, found + replacement.size())) {
    tags.replace(found, tag.size(), replacement);
  }
}

}  // namespace duskmarch
