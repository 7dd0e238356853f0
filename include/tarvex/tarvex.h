// All tools of the library.
#pragma once

#include "tarvex/coincidence.h"
#include "tarvex/orientation.h"
#include "tarvex/renumber.h"
#include "tarvex/tidy.h"
