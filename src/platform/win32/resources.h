// The numbers of what lies in the program file. For the resource compiler too, so macros.
#pragma once

#define programicon 1
