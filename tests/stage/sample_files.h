// A sample project's files, read into memory: nothing that is done to them reaches the disk.
#pragma once

#include <memory>
#include <string>

#include "environment/memory_files.h"

namespace corvane::stage {

// The files of a folder of samples/, in a folder "C:\Projects\<name>".
void ReadSample(environment::MemoryFiles& files, const std::string& name);

}  // namespace corvane::stage
