// Opening a file for writing, for the game's files and for a handler of a fatal signal alike.
#pragma once

namespace duskmarch {

// Opens, and creates where there is none, the regular file `name` (from `folder`, a descriptor, if
// it is relative) for writing, keeping its content. -1 with errno set on any error, and for a link
// or anything else that is no regular file. May be called in a signal handler.
int openforwriting(int folder, const char* name, int moreflags) noexcept;

}  // namespace duskmarch
