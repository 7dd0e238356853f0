#include "workbench/file/atomic_file.h"

#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <optional>
#include <utility>

#include "workbench/file/file_error.h"
#include "workbench/file/read_file.h"

namespace Tarvex::Workbench {
namespace {

namespace fs = std::filesystem;

constexpr char const* kBackupEnding = ".bak";
constexpr int kMostLinks = 40;  // as the system follows at most

// The temporary file that a signal handler has to remove: a path in fixed memory, and whether it
// holds one.
char g_temporary[PATH_MAX];
volatile std::sig_atomic_t g_hasTemporary = 0;

/// Keeps a path where the signal handler finds it, as long as it lives.
class SignalNote {
 public:
  explicit SignalNote(std::string const& path) {
    std::memcpy(g_temporary, path.c_str(), path.size() + 1);
    std::atomic_signal_fence(std::memory_order_release);
    g_hasTemporary = 1;
  }
  SignalNote(SignalNote const&) = delete;
  SignalNote& operator=(SignalNote const&) = delete;
  ~SignalNote() { g_hasTemporary = 0; }
};

/// A failure of the system, told for a path.
[[noreturn]] void Fail(std::string const& path, int error) {
  throw FileError({path, 0, 0, ""}, "cannot be written: " + SystemText(error));
}

/// An open file that is closed on every way out.
class Descriptor {
 public:
  explicit Descriptor(int number) : m_number(number) {}
  Descriptor(Descriptor const&) = delete;
  Descriptor& operator=(Descriptor const&) = delete;
  ~Descriptor() { Close(); }

  int Number() const { return m_number; }
  bool IsOpen() const { return m_number >= 0; }
  /// Whether all went well, which some file systems tell at the close only.
  bool Close() {
    int const number = std::exchange(m_number, -1);
    return number < 0 || ::close(number) == 0;
  }

 private:
  int m_number;
};

bool WriteAll(int descriptor, std::string_view contents) {
  while (!contents.empty()) {
    auto const wrote = ::write(descriptor, contents.data(), contents.size());
    if (wrote < 0 && errno == EINTR) continue;
    if (wrote < 0) return false;
    contents.remove_prefix(static_cast<std::size_t>(wrote));
  }
  return true;
}

/// The path behind symbolic links, also when nothing is there.
fs::path FollowLinks(fs::path path) {
  std::error_code error;
  for (int i = 0; fs::is_symlink(fs::symlink_status(path, error)); ++i) {
    if (i == kMostLinks) Fail(path.string(), ELOOP);
    path = path.parent_path() / fs::read_symlink(path, error);
  }
  return path;
}

/// Status of what is at a path, empty when nothing is.
std::optional<struct stat> StatusOf(std::string const& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) == 0) return status;
  if (errno != ENOENT) Fail(path, errno);
  return std::nullopt;
}

std::string RandomDigits() {
  std::uint64_t bits = 0;
  if (::getrandom(&bits, sizeof bits, 0) != sizeof bits) Fail("temporary file", errno);
  char text[17];
  std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(bits));
  return text;
}

/// A name beside a file that nobody can guess.
std::string TemporaryFor(fs::path const& target) {
  constexpr std::size_t kMostOfName = 200;  // of the 255 bytes that a name may have
  auto const name = target.filename().string().substr(0, kMostOfName);
  return (target.parent_path() / ("." + name + "." + RandomDigits() + ".tmp")).string();
}

/// One replacement of a regular file, from opening the temporary file to synchronising the folder.
class Replacement {
 public:
  Replacement(fs::path target, std::optional<struct stat> const& old)
      : m_target(std::move(target)), m_old(old), m_temporary(TemporaryFor(m_target)) {
    if (m_temporary.size() >= sizeof g_temporary) Fail(m_target.string(), ENAMETOOLONG);
  }

  void Run(std::string_view contents, OldFile oldFile) {
    SignalNote const note(m_temporary);
    try {
      WriteTemporary(contents);
      if (m_old && oldFile == OldFile::StaysAsBackup) KeepBackup();
      Check(::rename(m_temporary.c_str(), m_target.c_str()) == 0);
    } catch (...) {
      ::unlink(m_temporary.c_str());
      throw;
    }
    SynchroniseFolder();
  }

 private:
  void Check(bool good) const {
    if (!good) Fail(m_target.string(), errno);
  }

  void WriteTemporary(std::string_view contents) {
    if (WriteUnnamed(contents)) return;
    Descriptor file(::open(m_temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, Mode()));
    Check(file.IsOpen());
    Fill(file.Number(), contents);
    Check(file.Close());
  }

  /// Writes a file without a name and gives it the temporary one once it is whole, so that a
  /// process that is killed while it writes leaves nothing. @return false where the file system
  /// can't.
  bool WriteUnnamed(std::string_view contents) const {
    Descriptor const file(::open(Folder().c_str(), O_WRONLY | O_TMPFILE | O_CLOEXEC, Mode()));
    if (!file.IsOpen()) return false;
    Fill(file.Number(), contents);
    auto const self = "/proc/self/fd/" + std::to_string(file.Number());
    return ::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, m_temporary.c_str(), AT_SYMLINK_FOLLOW) == 0;
  }

  mode_t Mode() const {
    constexpr mode_t kForAll = 0666;  // less what the process masks
    constexpr mode_t kForOwner = 0600;
    return m_old ? kForOwner : kForAll;
  }

  void Fill(int descriptor, std::string_view contents) const {
    if (m_old) KeepMode(descriptor);
    Check(WriteAll(descriptor, contents));
    Check(::fsync(descriptor) == 0);
  }

  void KeepMode(int descriptor) const {
    constexpr mode_t kPermissions = 0777;
    // The owner can be kept by a privileged user only; for others the file becomes their own.
    [[maybe_unused]] int const owner = ::fchown(descriptor, m_old->st_uid, m_old->st_gid);
    Check(::fchmod(descriptor, m_old->st_mode & kPermissions) == 0);
  }

  /// Gives the old file its second name. The second name is made aside and renamed, for a former
  /// backup is to be replaced in one step too.
  void KeepBackup() const {
    auto const backup = m_target.string() + kBackupEnding;
    auto const aside = TemporaryFor(backup);
    Check(::link(m_target.c_str(), aside.c_str()) == 0);
    if (::rename(aside.c_str(), backup.c_str()) == 0) return;
    int const error = errno;
    ::unlink(aside.c_str());
    Fail(backup, error);
  }

  fs::path Folder() const {
    return m_target.has_parent_path() ? m_target.parent_path() : fs::path(".");
  }

  void SynchroniseFolder() const {
    Descriptor const open(::open(Folder().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // A folder that can't be read, or a file system without that operation, has nothing to add.
    if (!open.IsOpen() || ::fsync(open.Number()) == 0 || errno == EINVAL) return;
    Fail(m_target.string(), errno);
  }

  fs::path m_target;
  std::optional<struct stat> m_old;
  std::string m_temporary;
};

void WriteTo(int descriptor, std::string const& name, std::string_view contents) {
  if (!WriteAll(descriptor, contents)) Fail(name, errno);
}

void WriteInPlace(std::string const& path, std::string_view contents) {
  Descriptor file(::open(path.c_str(), O_WRONLY | O_CLOEXEC));
  if (!file.IsOpen()) Fail(path, errno);
  WriteTo(file.Number(), path, contents);
  if (!file.Close()) Fail(path, errno);
}

}  // namespace

void WriteFileAtomically(std::string const& path, std::string_view contents, OldFile oldFile) {
  if (path == kStandardPath) return WriteTo(STDOUT_FILENO, "standard output", contents);
  auto const old = StatusOf(path);
  if (old && S_ISDIR(old->st_mode)) Fail(path, EISDIR);
  if (old && !S_ISREG(old->st_mode)) return WriteInPlace(path, contents);
  // A file that may not be written is not replaced either, though the folder would allow it.
  if (old && ::access(path.c_str(), W_OK) != 0) Fail(path, errno);
  Replacement(FollowLinks(path), old).Run(contents, oldFile);
}

void RemoveTemporaryFileOnSignal() noexcept {
  int const error = errno;
  std::atomic_signal_fence(std::memory_order_acquire);
  if (g_hasTemporary != 0) ::unlink(g_temporary);
  errno = error;
}

}  // namespace Tarvex::Workbench
