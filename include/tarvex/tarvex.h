// All tools of the library.
#pragma once

#include "tarvex/coincidence.h"
#include "tarvex/combinations.h"
#include "tarvex/connect_slab.h"
#include "tarvex/conversion.h"
#include "tarvex/data_mgr.h"
#include "tarvex/disconnect.h"
#include "tarvex/merge_rigid.h"
#include "tarvex/orientation.h"
#include "tarvex/refinement.h"
#include "tarvex/renumber.h"
#include "tarvex/split_connect.h"
#include "tarvex/tidy.h"
