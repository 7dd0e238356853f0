// The one source that includes the formatting library: wide printf takes seconds to compile.
#include <fmt/args.h>
#include <fmt/printf.h>
#include <fmt/xchar.h>

#include <stdexcept>

#include "store/text/cstring.h"

namespace Tarvex::Text {

std::wstring FormatText(std::wstring_view format, std::vector<FormatArg> const& args) {
  using Context = fmt::wprintf_context;
  std::vector<fmt::basic_format_arg<Context>> packed;
  packed.reserve(args.size());
  for (auto const& arg : args)
    packed.push_back(
        std::visit([](auto const& value) { return fmt::detail::make_arg<Context>(value); }, arg));
  try {
    return fmt::vsprintf(fmt::wstring_view(format.data(), format.size()),
                         fmt::basic_format_args<Context>(packed.data(), int(packed.size())));
  } catch (fmt::format_error const& fault) {
    throw std::invalid_argument(std::string("text format: ") + fault.what());
  }
}

}  // namespace Tarvex::Text
