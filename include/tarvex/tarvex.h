// All tools of the library.
#pragma once

#include "tarvex/combinations.h"
#include "tarvex/orientation.h"
