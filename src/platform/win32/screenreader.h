// Whether a screen reader is there, as far as the system tells.
#pragma once

namespace duskmarch {

// By the flag that readers set. Narrator does not set it.
bool readerflag();
// Also because somebody listens to UI Automation, who may be a reader.
bool readerlistens();

}  // namespace duskmarch
