#include "workbench/file/read_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <thread>

#include "tests/workbench/file/file_support.h"

namespace Tarvex::Workbench::ReadFileTest {
namespace {

class ReadFile : public Testing::FolderTest {};

TEST_F(ReadFile, GivesAllBytesAndRoomForMore) {
  std::string const bytes("a\0\xFF\r\n", 5);
  Put("a", bytes);
  auto const text = ReadWholeFile(Path("a"), 100);
  EXPECT_EQ(text, bytes);
  EXPECT_GE(text.capacity(), text.size() + 100);
  Put("empty", "");
  EXPECT_EQ(ReadWholeFile(Path("empty")), "");
}

TEST_F(ReadFile, ReadsStandardInputThroughAPipeToItsEnd) {
  std::string const bytes(3'000'000, 'x');  // more than a pipe holds, and than one growth
  int ends[2];
  ASSERT_EQ(::pipe(ends), 0);
  std::thread writer([&] {
    for (std::size_t at = 0; at < bytes.size();) {
      auto const wrote = ::write(ends[1], bytes.data() + at, bytes.size() - at);
      if (wrote < 0) break;
      at += static_cast<std::size_t>(wrote);
    }
    ::close(ends[1]);
  });
  int const input = ::dup(STDIN_FILENO);
  ::dup2(ends[0], STDIN_FILENO);
  auto const text = ReadWholeFile("-");
  ::dup2(input, STDIN_FILENO);
  writer.join();
  for (int const end : {ends[0], input}) ::close(end);
  EXPECT_EQ(text, bytes);
}

TEST_F(ReadFile, TellsTheReason) {
  try {
    ReadWholeFile(Path("none"));
    FAIL();
  } catch (FileError const& fault) {
    EXPECT_EQ(fault.what(), Path("none") + ": cannot be read: No such file or directory");
  }
}

}  // namespace
}  // namespace Tarvex::Workbench::ReadFileTest
