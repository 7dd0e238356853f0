#include "workbench/file/read_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "workbench/file/file_error.h"

namespace Tarvex::Workbench {
namespace {

constexpr std::size_t kChunk = std::size_t{1} << 20;

/// An open file that is closed on every way out.
struct Input {
  explicit Input(std::string const& path)
      : descriptor(path == kStandardPath ? STDIN_FILENO
                                         : ::open(path.c_str(), O_RDONLY | O_CLOEXEC)) {}
  Input(Input const&) = delete;
  Input& operator=(Input const&) = delete;
  ~Input() {
    if (descriptor > STDIN_FILENO) ::close(descriptor);
  }

  int descriptor;
};

/// Size of a regular file, 0 for anything else.
std::size_t SizeOf(int descriptor) {
  struct stat status {};
  bool const known = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
  return known ? static_cast<std::size_t>(status.st_size) : 0;
}

}  // namespace

std::string SystemText(int number) { return std::generic_category().message(number); }

std::string ReadWholeFile(std::string const& path, std::size_t spare) {
  auto const fail = [&] {
    auto const name = path == kStandardPath ? "standard input" : path;
    throw FileError({name, 0, 0, ""}, "cannot be read: " + SystemText(errno));
  };
  Input const input(path);
  if (input.descriptor < 0) fail();
  std::string text;
  std::size_t used = 0;
  // One byte more than the file has, so that its end is seen without growing.
  text.reserve(SizeOf(input.descriptor) + 1 + spare);
  text.resize(SizeOf(input.descriptor) + 1);
  for (;;) {
    if (used == text.size()) text.resize(used + std::max(used, kChunk));
    auto const got = ::read(input.descriptor, text.data() + used, text.size() - used);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) fail();
    if (got == 0) break;
    used += static_cast<std::size_t>(got);
  }
  text.resize(used);
  text.reserve(used + spare);
  return text;
}

}  // namespace Tarvex::Workbench
