// Calls of the system that fail when a test says so: the disk broke after the writing.
#pragma once

namespace duskmarch::refused {

inline bool synchronizing = false;
inline bool closing = false;

}  // namespace duskmarch::refused
