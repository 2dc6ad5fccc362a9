#include "forms/types.h"

#include "runtime/error.h"

namespace corvane::forms {

Color QBColor(int index) {
  static constexpr Color kColors[] = {0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
                                      0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
  if (index < 0 || index > 15) throw runtime::Error(runtime::kInvalidProcedureCall);
  return kColors[index];
}

}  // namespace corvane::forms
