// Windows paths as texts: "C:\a\b", "\\server\share\a", relative ones. Their names are bytes of the code page, or,
// where they come from this machine, of UTF-8: both may stand in one path.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace corvane::environment {

// Behind the character at [at] (from 0), whatever its bytes: the second of two may look like "\". Bytes beyond ASCII
// that are UTF-8 up to the next ASCII character are taken for that, and stepped over at once.
size_t BehindCharacter(std::string_view path, size_t at);

// Whether all of [text] is UTF-8.
bool IsUtf8(std::string_view text);
// Whether [name] is taken for a name of this machine: it holds UTF-8 beyond ASCII, and in a double-byte code page a
// character of three bytes at least; two may be one character of the page.
bool IsNameOfUtf8(std::string_view name);
// [path] with those of its names in the code page that it holds.
std::string InCodePage(std::string_view path);

std::string FolderOf(std::string_view path);     // with its ending "\"; empty where there is none
std::string FileNameOf(std::string_view path);   // behind the last "\"
std::string StemOf(std::string_view path);       // the file name without its extension
std::string ExtensionOf(std::string_view path);  // ".frm"; empty where there is none

bool IsAbsolutePath(std::string_view path);
// [path] seen from [folder], relative where that is empty; "." and ".." are resolved, "/" counts as "\".
std::string JoinPath(std::string_view folder, std::string_view path);
// [path] as a file in [folder] names it: relative where both are on one drive, else whole.
std::string RelativePath(std::string_view folder, std::string_view path);
// A name counts as the same in UTF-8 and in the code page.
bool SamePath(std::string_view a, std::string_view b);

}  // namespace corvane::environment
