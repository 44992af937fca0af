#include "ModuleExports.h"

#include <windows.h>

namespace OruTest
{

std::vector<std::string> exportedNames(char const* moduleName)
{
    std::vector<std::string> names;
    const HMODULE module = GetModuleHandleA(moduleName);
    if (!module)
        return names;
    const BYTE* base = reinterpret_cast<const BYTE*>(module);
    const IMAGE_DOS_HEADER* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const IMAGE_NT_HEADERS* nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& directory = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
    if (directory.Size == 0)
        return names;
    const IMAGE_EXPORT_DIRECTORY* exports =
        reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(base + directory.VirtualAddress);
    const DWORD* nameOffsets = reinterpret_cast<const DWORD*>(base + exports->AddressOfNames);
    for (DWORD i = 0; i < exports->NumberOfNames; ++i)
        names.emplace_back(reinterpret_cast<char const*>(base + nameOffsets[i]));
    return names;
}

} // namespace OruTest
