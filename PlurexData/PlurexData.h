#pragma once

// Every public header of the library.

#include "PlurexData/Export.h"

#include "PlurexData/channels/ChannelState.h"
#include "PlurexData/channels/Guid.h"
#include "PlurexData/cuepoints/CuePoint.h"
#include "PlurexData/cuepoints/CuePointCache.h"
#include "PlurexData/cuepoints/CuePointClip.h"
#include "PlurexData/cuepoints/CuePointCopyCommand.h"
#include "PlurexData/cuepoints/CuePointData.h"
#include "PlurexData/cuepoints/CuePointDbEventArgs.h"
#include "PlurexData/cuepoints/CuePointDbEventType.h"
#include "PlurexData/cuepoints/CuePointDeleteCommand.h"
#include "PlurexData/cuepoints/CuePointUser.h"
#include "PlurexData/cuepoints/CuePointUserCommand.h"
#include "PlurexData/cuepoints/CuePointUsers.h"
#include "PlurexData/data/clips/Guid.h"
#include "PlurexData/data/clips/KepId.h"
#include "PlurexData/data/clips/UmId.h"
#include "PlurexData/data/servers/Guid.h"
#include "PlurexData/data/servers/ServerId.h"
#include "PlurexData/data/timelines/TimelineId.h"
#include "PlurexData/multiviewer/MultiviewerDataOverrides.h"
#include "PlurexData/multiviewer/PlayerDataOverrides.h"
#include "PlurexData/system/Delegate.h"
#include "PlurexData/system/EventArgs.h"
