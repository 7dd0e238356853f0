// All tools of the library.
#pragma once

#include "tarvex/orientation.h"
