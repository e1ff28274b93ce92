#pragma once

// Every public header of the library.

#include "PlurexData/Export.h"

#include "PlurexData/data/Guid.h"
#include "PlurexData/data/clips/Guid.h"
#include "PlurexData/data/clips/KepId.h"
#include "PlurexData/data/clips/UmId.h"
#include "PlurexData/data/servers/Guid.h"
#include "PlurexData/data/servers/ServerId.h"
#include "PlurexData/data/timelines/TimelineId.h"
