#include "workbench/file/atomic_file.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>

#include "tests/workbench/file/file_support.h"

namespace {

/// Number that the next call of a system function fails with, 0 for none.
int g_renameFault = 0;
int g_fsyncFault = 0;
/// What is called before a rename, if anything.
void (*g_beforeRename)() = nullptr;
/// Number of the write at which the process is killed, 0 for none, and what a write takes at most.
int g_killAtWrite = 0;
constexpr std::size_t kMostOfAWrite = 1000;

}  // namespace

// The program's calls come here instead of to the system's library, and go on to the system.
extern "C" int rename(char const* from, char const* to) noexcept {
  if (g_beforeRename != nullptr) g_beforeRename();
  if (g_renameFault != 0) {
    errno = g_renameFault;
    return -1;
  }
  return static_cast<int>(::syscall(SYS_rename, from, to));
}
extern "C" ssize_t write(int descriptor, void const* bytes, std::size_t count) {
  if (g_killAtWrite > 0 && --g_killAtWrite == 0) ::kill(::getpid(), SIGKILL);
  auto const most = g_killAtWrite > 0 ? std::min(count, kMostOfAWrite) : count;
  return ::syscall(SYS_write, descriptor, bytes, most);
}
extern "C" int fsync(int descriptor) {
  if (g_fsyncFault != 0) {
    errno = g_fsyncFault;
    return -1;
  }
  return static_cast<int>(::syscall(SYS_fsync, descriptor));
}

namespace Tarvex::Workbench::AtomicFileTest {
namespace {

using Testing::Contents;

class AtomicFile : public Testing::FolderTest {
 protected:
  ~AtomicFile() override {
    g_renameFault = 0;
    g_fsyncFault = 0;
    g_beforeRename = nullptr;
  }

  /// Reason why a write fails, empty when it does not.
  std::string Failure(std::string const& path, std::string_view text = "new",
                      OldFile oldFile = OldFile::Goes) {
    try {
      WriteFileAtomically(path, text, oldFile);
      return "";
    } catch (FileError const& fault) {
      EXPECT_EQ(fault.Place().file, path);
      return fault.Text();
    }
  }

  /// Expects the old file alone in the folder.
  void ExpectOnlyOld(std::string const& name) {
    EXPECT_EQ(Contents(Path(name)), "old");
    EXPECT_EQ(Count(), 1);
  }

  static mode_t Mode(std::string const& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status.st_mode & 07777;
  }
};

TEST_F(AtomicFile, CreatesAndReplaces) {
  WriteFileAtomically(Path("a"), "one");
  EXPECT_EQ(Contents(Path("a")), "one");
  WriteFileAtomically(Path("a"), std::string("t\0o", 3));
  EXPECT_EQ(Contents(Path("a")), std::string("t\0o", 3));
  EXPECT_EQ(Count(), 1);
}

TEST_F(AtomicFile, TakesARelativeNameWithoutFolder) {
  auto const before = std::filesystem::current_path();
  std::filesystem::current_path(Path(""));
  WriteFileAtomically("a", "x");
  std::filesystem::current_path(before);
  EXPECT_EQ(Contents(Path("a")), "x");
  EXPECT_EQ(Count(), 1);
}

TEST_F(AtomicFile, GivesANewFileTheModeOfTheProcess) {
  auto const before = ::umask(027);
  WriteFileAtomically(Path("a"), "x");
  ::umask(before);
  EXPECT_EQ(Mode(Path("a")), 0640u);  // 0666 less 027
}

TEST_F(AtomicFile, KeepsModeAndOwnerOfAnOldFile) {
  Put("a", "old");
  ASSERT_EQ(::chmod(Path("a").c_str(), 0604), 0);
  bool const privileged = ::chown(Path("a").c_str(), 1234, 1235) == 0;
  WriteFileAtomically(Path("a"), "new");
  EXPECT_EQ(Mode(Path("a")), 0604u);
  struct stat status {};
  ::stat(Path("a").c_str(), &status);
  if (privileged) {
    EXPECT_EQ(std::pair(status.st_uid, status.st_gid), std::pair(1234u, 1235u));
  }
}

TEST_F(AtomicFile, IsANewFileBehindTheSameName) {
  Put("a", "old");
  std::ifstream reader(Path("a"));
  WriteFileAtomically(Path("a"), "new");
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(reader), {}), "old");
}

TEST_F(AtomicFile, ReplacesWhatASymbolicLinkPointsTo) {
  std::filesystem::create_directory(Path("d"));
  Put("d/target", "old");
  std::filesystem::create_symlink("d/target", Path("link"));
  std::filesystem::create_symlink(Path("link"), Path("chain"));
  WriteFileAtomically(Path("chain"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(Path("chain")));
  EXPECT_TRUE(std::filesystem::is_symlink(Path("link")));
  EXPECT_FALSE(std::filesystem::is_symlink(Path("d/target")));
  EXPECT_EQ(Contents(Path("d/target")), "new");
}

TEST_F(AtomicFile, CreatesWhatASymbolicLinkPointsTo) {
  std::filesystem::create_symlink("target", Path("link"));
  WriteFileAtomically(Path("link"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(Path("link")));
  EXPECT_EQ(Contents(Path("target")), "new");
}

TEST_F(AtomicFile, RefusesLinksInACircle) {
  std::filesystem::create_symlink("b", Path("a"));
  std::filesystem::create_symlink("a", Path("b"));
  EXPECT_EQ(Failure(Path("a")), "cannot be written: Too many levels of symbolic links");
}

TEST_F(AtomicFile, RefusesFoldersAndMissingFolders) {
  EXPECT_EQ(Failure(Path("")), "cannot be written: Is a directory");
  EXPECT_EQ(Failure(Path("none/a")), "cannot be written: No such file or directory");
  EXPECT_EQ(Count(), 0);
}

TEST_F(AtomicFile, WritesDevicesInPlace) {
  EXPECT_EQ(Failure("/dev/full"), "cannot be written: No space left on device");
  EXPECT_EQ(Failure("/dev/null"), "");
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

TEST_F(AtomicFile, LeavesTheOldFileWhenTheDiskIsFull) {
  Put("a", "old");
  // A limit on the size of files stands for a full disk: the write comes back short, then fails.
  rlimit before{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
  auto const handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit const small{1000, before.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  auto const failure = Failure(Path("a"), std::string(5000, 'x'));
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(failure, "cannot be written: File too large");
  ExpectOnlyOld("a");
}

// Five writes of a part each, and the process killed at the first, the second and so on.
TEST_F(AtomicFile, LeavesTheOldFileAndNoOtherWhenKilledAtAnyWrite) {
  int const probe = ::open(Path("").c_str(), O_WRONLY | O_TMPFILE, 0600);
  if (probe < 0) GTEST_SKIP() << "the file system has no files without a name";
  ::close(probe);
  Put("a", "old");
  std::string const text(5 * kMostOfAWrite, 'x');
  for (int at = 1; at <= 6; ++at) {
    auto const child = ::fork();
    if (child == 0) {
      g_killAtWrite = at;
      WriteFileAtomically(Path("a"), text);
      ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(WIFSIGNALED(status), at <= 5) << at;
    if (at <= 5) ExpectOnlyOld("a");
  }
  EXPECT_EQ(Contents(Path("a")), text);
  EXPECT_EQ(Count(), 1);
}

TEST_F(AtomicFile, LeavesTheOldFileWhenItCannotBeSynchronised) {
  Put("a", "old");
  g_fsyncFault = EIO;
  EXPECT_EQ(Failure(Path("a")), "cannot be written: Input/output error");
  ExpectOnlyOld("a");
}

TEST_F(AtomicFile, LeavesTheOldFileWhenItCannotBeReplaced) {
  Put("a", "old");
  g_renameFault = EBUSY;
  EXPECT_EQ(Failure(Path("a")), "cannot be written: Device or resource busy");
  ExpectOnlyOld("a");
}

TEST_F(AtomicFile, KeepsTheOldFileAsBackupInThePlaceOfAFormerOne) {
  Put("a", "old");
  Put("a.bak", "older");
  WriteFileAtomically(Path("a"), "new", OldFile::StaysAsBackup);
  EXPECT_EQ(Contents(Path("a")), "new");
  EXPECT_EQ(Contents(Path("a.bak")), "old");
  EXPECT_EQ(Count(), 2);
}

TEST_F(AtomicFile, MakesNoBackupOfNothing) {
  WriteFileAtomically(Path("a"), "new", OldFile::StaysAsBackup);
  EXPECT_EQ(Count(), 1);
}

TEST_F(AtomicFile, LeavesTheOldFileWhenTheBackupFails) {
  Put("a", "old");
  std::filesystem::create_directory(Path("a.bak"));
  try {
    WriteFileAtomically(Path("a"), "new", OldFile::StaysAsBackup);
    FAIL();
  } catch (FileError const& fault) {
    EXPECT_EQ(fault.what(), Path("a.bak") + ": cannot be written: Is a directory");
  }
  EXPECT_EQ(Contents(Path("a")), "old");
  EXPECT_EQ(Count(), 2);
}

TEST_F(AtomicFile, SignalHandlerRemovesTheTemporaryFileAndKeepsTheErrorNumber) {
  Put("a", "old");
  auto const child = ::fork();
  if (child == 0) {
    g_beforeRename = [] {
      errno = 77;
      RemoveTemporaryFileOnSignal();
      ::_exit(errno);
    };
    WriteFileAtomically(Path("a"), "new");
    ::_exit(1);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_EQ(WEXITSTATUS(status), 77);
  ExpectOnlyOld("a");
}

TEST_F(AtomicFile, SignalHandlerRemovesNothingWhenNoWriteIsUnderWay) {
  WriteFileAtomically(Path("a"), "new");
  g_renameFault = EBUSY;
  EXPECT_NE(Failure(Path("a")), "");
  RemoveTemporaryFileOnSignal();
  EXPECT_EQ(Contents(Path("a")), "new");
}

TEST_F(AtomicFile, TemporaryFileStandsBesideTheTargetUnderAnotherNameEachTime) {
  static std::filesystem::path folder;
  static std::vector<std::string> seen;
  folder = Path("");
  g_beforeRename = [] {
    for (auto const& entry : std::filesystem::directory_iterator(folder))
      if (entry.path().filename() != "a") seen.push_back(entry.path().filename());
  };
  WriteFileAtomically(Path("a"), "x");
  WriteFileAtomically(Path("a"), "x");
  ASSERT_EQ(seen.size(), 2u);
  EXPECT_NE(seen[0], seen[1]);
  EXPECT_TRUE(seen[0].starts_with(".a.") && seen[0].ends_with(".tmp")) << seen[0];
}

TEST_F(AtomicFile, WritesToStandardOutput) {
  int const output = ::dup(STDOUT_FILENO);
  int const file = ::open(Path("out").c_str(), O_WRONLY | O_CREAT, 0600);
  ::dup2(file, STDOUT_FILENO);
  WriteFileAtomically("-", "text");
  ::dup2(output, STDOUT_FILENO);
  for (int const open : {file, output}) ::close(open);
  EXPECT_EQ(Contents(Path("out")), "text");
}

}  // namespace
}  // namespace Tarvex::Workbench::AtomicFileTest
