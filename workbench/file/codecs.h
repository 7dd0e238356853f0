// How each type of value stands in model files: one codec a type, with reading, writing and schema
// side by side. A new type of value needs a codec in one of these headers; a new field or record of
// known types needs nothing.
#pragma once

#include "workbench/file/list_codecs.h"
#include "workbench/file/object_codec.h"
#include "workbench/file/scalar_codecs.h"
