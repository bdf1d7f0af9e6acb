// Every component of the package in one include.
#pragma once

#include "controls/Qeltbackground.h"
#include "controls/Qeltbutton.h"
#include "controls/Qeltgauge.h"
#include "controls/Qelthint.h"
#include "controls/Qeltlabel.h"
#include "controls/Qeltspinedit.h"
#include "core/Qelclasses2.h"
#include "core/Qelfunctions.h"
