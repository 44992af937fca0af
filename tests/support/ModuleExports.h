#ifndef ORU_TESTS_MODULEEXPORTS_H
#define ORU_TESTS_MODULEEXPORTS_H

#include <string>
#include <vector>

namespace OruTest
{

/// The names in the export table of a loaded module (such as "oru_ogl.dll"),
/// read from its PE export directory; empty if the module is not loaded.
std::vector<std::string> exportedNames(char const* moduleName);

} // namespace OruTest

#endif
