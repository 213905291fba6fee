// SPDX-License-Identifier: MIT
// What a page is made with: its base, the builder of its controls, their layouts and texts.
#pragma once

#include "forms/form.h"
#include "forms/formbuilder.h"
