// The usual headers of the window-free half of the class library in one.
#pragma once

#include "host/rtl/classregistry.h"
#include "host/rtl/collection.h"
#include "host/rtl/colors.h"
#include "host/rtl/component.h"
#include "host/rtl/convert.h"
#include "host/rtl/datetime.h"
#include "host/rtl/events.h"
#include "host/rtl/exceptions.h"
#include "host/rtl/filer.h"
#include "host/rtl/formfile.h"
#include "host/rtl/properties.h"
#include "host/rtl/reader.h"
#include "host/rtl/streams.h"
#include "host/rtl/strings.h"
#include "host/rtl/text.h"
#include "host/rtl/writer.h"
