#include "values/namelist.h"

namespace duskmarch {

std::string joinnames(std::span<const std::string> names, std::string_view singular,
                      std::string_view plural) {
  std::string sentence;
  for (std::size_t n = 0; n < names.size(); ++n) {
    sentence += names[n];
    if (n + 1 == names.size()) {
      sentence += names.size() == 1 ? singular : plural;
    } else {
      sentence += n + 2 == names.size() ? " and " : ", ";
    }
  }
  return sentence;
}

}  // namespace duskmarch
