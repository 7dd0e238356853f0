// Writes files so that they are there as a whole or not at all.
//
// The text goes to a temporary file beside the target, which is synchronised and renamed over the
// target; then the folder is synchronised. So a crash, a full disk or an interrupt leaves the old
// file or the new one. Where the file system can, the temporary file has no name until it is whole,
// so that even a process that is killed while it writes leaves no other file. Mode and, as far as
// allowed, owner of the old file are kept; of a symbolic link what it points to is replaced. What
// is no regular file (a device, a pipe) is written in place. One file is written at a time.
#pragma once

#include <string>
#include <string_view>

namespace Tarvex::Workbench {

/// What becomes of a file that is replaced.
enum class OldFile {
  Goes,
  StaysAsBackup,  ///< with ".bak" behind its name, in the place of a former backup
};

/// Replaces or creates a file, or writes to standard output for "-". On failure throws FileError
/// with the reason, removes the temporary file and leaves an existing file as it was. The one
/// failure after which the new file is there is that of synchronising the folder.
void WriteFileAtomically(std::string const& path, std::string_view contents,
                         OldFile oldFile = OldFile::Goes);

/// Removes the temporary file of the write that is under way, if there is one. For signal handlers:
/// it is async-signal-safe and keeps errno.
void RemoveTemporaryFileOnSignal() noexcept;

}  // namespace Tarvex::Workbench
