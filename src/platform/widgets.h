#pragma once

// Every widget kind of the platform.
#include "platform/buttons.h"
#include "platform/combo_box.h"
#include "platform/date_picker.h"
#include "platform/grid.h"
#include "platform/label.h"
#include "platform/list_view.h"
#include "platform/menu.h"
#include "platform/pictures.h"
#include "platform/text_box.h"
#include "platform/widget.h"
