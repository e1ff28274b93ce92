#pragma once

// Every public header of the library.

#include "PlurexData/Export.h"

#include "PlurexData/channels/ChannelState.h"
#include "PlurexData/channels/Guid.h"
#include "PlurexData/data/clips/Guid.h"
#include "PlurexData/data/clips/KepId.h"
#include "PlurexData/data/clips/UmId.h"
#include "PlurexData/data/servers/Guid.h"
#include "PlurexData/data/servers/ServerId.h"
#include "PlurexData/data/timelines/TimelineId.h"
#include "PlurexData/multiviewer/MultiviewerDataOverrides.h"
#include "PlurexData/multiviewer/PlayerDataOverrides.h"
