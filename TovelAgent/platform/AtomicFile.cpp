// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/AtomicFile.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/FileError.h"
#include "platform/SystemError.h"

namespace quillmark {
namespace {

using boost::system::error_code;

constexpr mode_t privateFile = 0600;
constexpr mode_t privateFolder = 0700;

std::string folderOf(const std::string& path) {
  const auto slash = path.rfind('/');
  return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

/// The file to replace, with symbolic links resolved, and the mode of the new file.
struct Target {
  std::string path;
  mode_t mode = privateFile;
};

error_code resolveTarget(const std::string& path, Target& target) {
  target.path = path;
  struct stat status {};
  if (lstat(path.c_str(), &status) != 0) {
    return errno == ENOENT ? error_code{} : lastSystemError();
  }
  const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr),
                                                         &std::free);
  if (!real || stat(real.get(), &status) != 0) {
    return lastSystemError();
  }
  if (!S_ISREG(status.st_mode)) {
    return FileError::notRegular;
  }
  target.path = real.get();
  const mode_t mode = status.st_mode & 07777U;
  target.mode = (mode & ~privateFile) == 0 ? mode : privateFile;
  return {};
}

/// A file next to `target`; the destructor removes it unless it was moved away.
class TemporaryFile final {
 public:
  explicit TemporaryFile(const std::string& target)
      : path_(target + ".XXXXXX"), descriptor_(mkostemp(path_.data(), O_CLOEXEC)) {}
  ~TemporaryFile() {
    if (isOpen()) {
      close(descriptor_);
    }
    if (mustRemove_) {
      unlink(path_.c_str());
    }
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  [[nodiscard]] const char* path() const { return path_.c_str(); }
  [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }

  /// Call after the file was renamed: there is nothing left to remove.
  void markMoved() { mustRemove_ = false; }

  /// Writes `text`, sets the mode, flushes and closes the file.
  [[nodiscard]] error_code fill(std::string_view text, mode_t mode) {
    while (!text.empty()) {
      const ssize_t count = write(descriptor_, text.data(), text.size());
      if (count >= 0) {
        text.remove_prefix(static_cast<std::size_t>(count));
      } else if (errno != EINTR) {
        return lastSystemError();
      }
    }
    if (fchmod(descriptor_, mode) != 0 || fsync(descriptor_) != 0) {
      return lastSystemError();
    }
    const int descriptor = descriptor_;
    descriptor_ = -1;
    return close(descriptor) == 0 ? error_code{} : lastSystemError();
  }

 private:
  std::string path_;
  int descriptor_;
  bool mustRemove_ = isOpen();
};

/// Flushes the names in a folder: a power loss could undo what was just created or renamed
/// there. Errors are ignored, because some file systems do not support this.
void syncFolder(const std::string& path) {
  const int descriptor = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor >= 0) {
    fsync(descriptor);
    close(descriptor);
  }
}

}  // namespace

error_code createPrivateFolders(const std::string& path) {
  for (auto end = path.find('/', 1);; end = path.find('/', end + 1)) {
    const auto folder = path.substr(0, end);
    if (mkdir(folder.c_str(), privateFolder) == 0) {
      syncFolder(folderOf(folder));
    } else if (errno != EEXIST) {
      return lastSystemError();
    }
    if (end == std::string::npos) {
      break;
    }
  }
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) {
    return lastSystemError();
  }
  return S_ISDIR(status.st_mode) ? error_code{}
                                 : error_code(ENOTDIR, boost::system::system_category());
}

error_code writeFileAtomically(const std::string& path, std::string_view text) {
  Target target;
  if (const auto error = resolveTarget(path, target)) {
    return error;
  }
  TemporaryFile file(target.path);
  if (!file.isOpen()) {
    return lastSystemError();
  }
  if (const auto error = file.fill(text, target.mode)) {
    return error;
  }
  if (std::rename(file.path(), target.path.c_str()) != 0) {
    return lastSystemError();
  }
  file.markMoved();
  syncFolder(folderOf(target.path));
  return {};
}

error_code createFileAtomically(const std::string& path, std::string_view text) {
  TemporaryFile file(path);
  if (!file.isOpen()) {
    return lastSystemError();
  }
  if (const auto error = file.fill(text, privateFile)) {
    return error;
  }
  // link(), unlike rename(), does not replace an existing file.
  if (link(file.path(), path.c_str()) != 0) {
    return lastSystemError();
  }
  syncFolder(folderOf(path));
  return {};
}

}  // namespace quillmark
