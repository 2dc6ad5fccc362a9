// The environment as scripts under test reach it: itself, or through COM in the program that tests that.
#pragma once

#include <memory>

#include "environment/environment.h"

namespace corvane::script {

host::Ref<host::VBE> SeenByScripts(const std::shared_ptr<environment::Environment>& environment);

}  // namespace corvane::script
