// All control kinds. Include this to lay out a window.
#pragma once

#include "forms/buttons.h"
#include "forms/form.h"
#include "forms/lists.h"
#include "forms/menu.h"
#include "forms/picture_box.h"
#include "forms/scroll_bar.h"
#include "forms/static_controls.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "forms/toolbar.h"
#include "forms/user_control.h"
