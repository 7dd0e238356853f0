// Any text as the words of a selection list: it is refused with a place inside it, or it prints as
// a text that reads back as the same words and prints as the same text.
#include <cstdint>

#include "store/select/list_tokens.h"
#include "tests/fuzz/require.h"

namespace Tarvex::Data {
namespace {

void Check(CString const& text) {
  ListFault fault{-1, {}};
  auto const tokens = ReadListTokens(text, &fault);
  if (!tokens) {
    Testing::Require(fault.position >= 0 && fault.position < text.GetLength(),
                     "a fault is inside the text");
    return Testing::Require(!fault.reason.IsEmpty(), "a fault has a reason");
  }
  auto const printed = WriteListTokens(*tokens);
  auto const back = ReadListTokens(printed);
  Testing::Require(back == tokens, "words read back as they were printed");
  Testing::Require(WriteListTokens(*back) == printed, "words always print alike");
}

}  // namespace
}  // namespace Tarvex::Data

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  Tarvex::Data::Check(Tarvex::CString::FromUtf8({reinterpret_cast<char const*>(data), size}));
  return 0;
}
