// UTF-8 at the border of the model.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "store/export.h"

namespace Tarvex::Text {

/// Wide text of UTF-8 bytes; each byte that belongs to no character becomes U+FFFD.
TARVEX_STORE_EXPORT std::wstring DecodeUtf8(std::string_view utf8);

/// UTF-8 bytes of a wide text; surrogates and codes above U+10FFFF become U+FFFD.
TARVEX_STORE_EXPORT std::string EncodeUtf8(std::wstring_view text);

/// Offset of the first byte that is not valid UTF-8 (overlong forms and surrogates are not), or
/// empty when all is valid.
TARVEX_STORE_EXPORT std::optional<std::size_t> FindInvalidUtf8(std::string_view utf8);

}  // namespace Tarvex::Text
