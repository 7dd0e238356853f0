// All tools of the library.
#pragma once

#include "tarvex/data_mgr.h"
#include "tarvex/combinations.h"
#include "tarvex/coincidence.h"
#include "tarvex/orientation.h"
#include "tarvex/renumber.h"
#include "tarvex/split_connect.h"
#include "tarvex/tidy.h"
