// Any settings file: the program starts, and writes one that it reads back the same.
#include "fuzzfolder.h"
#include "invariants.h"
#include "platform/replay/replaysession.h"
#include "shell/speech/progress.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace duskmarch;
  const std::filesystem::path folder = fuzzfolder("progress.ini", data, size);
  ReplaySession first({.folder = folder});
  if (!brokeninvariant(first.game).empty()) std::abort();
  saveprogress(first.game);
  ReplaySession second({.folder = folder});
  const bool same = first.game.speechmode == second.game.speechmode &&
                    first.game.sapirate == second.game.sapirate &&
                    first.game.progressspare == second.game.progressspare;
  if (!same) std::abort();
  return 0;
}
