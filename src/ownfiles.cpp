#include "ownfiles.h"

#include "values/filelookup.h"
#include "values/pathtext.h"

namespace duskmarch {

std::optional<std::filesystem::path> ownfile(const Game& game, std::string_view name) {
  const auto own = findfile(game.filesfolder, name);
  return own ? own : findfile(game.programfolder, name);
}

std::filesystem::path ownfiletowrite(const Game& game, std::string_view name) {
  return findfile(game.filesfolder, name).value_or(game.filesfolder / pathof(tidyname(name)));
}

}  // namespace duskmarch
