// All tools of the library.
#pragma once

#include "tarvex/connect_slab.h"
#include "tarvex/disconnect.h"
#include "tarvex/merge_rigid.h"
#include "tarvex/orientation.h"
