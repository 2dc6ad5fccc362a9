// DiskFiles: host::Files on this machine's disk. On Linux "Z:\a\b" is /a/b; each name of a path is found without regard
// to case when the exact one does not exist, and bytes beyond ASCII are read in a code page when they are no UTF-8
// name.
#pragma once

#include <memory>

#include "host/services.h"

namespace corvane::environment {

std::unique_ptr<host::Files> NewDiskFiles();

// A path of this machine ("/a/b", relative ones from the current folder) as the logic's ("Z:\a\b"), and back.
std::string WindowsPath(const std::string& native);
std::string NativePath(const std::string& windows);

}  // namespace corvane::environment
