// The library's own files: what the maps folder supplies for the user's map file.
#pragma once
#include <string>

namespace zb {

// The file named by mapfil and its form (1 GSHH, 2 MAPG); false while none is named. The
// maps folder defines it; without maps the library has no user map file.
bool mapfil_name(std::string& name, int& form);

}  // namespace zb
