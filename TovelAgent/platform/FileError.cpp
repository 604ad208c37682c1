// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FileError.h"

#include <string>

namespace quillmark {
namespace {

// No category is deleted through the base class, so its destructor is not virtual.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor,*-non-virtual-destructor)
class Category final : public boost::system::error_category {
 public:
  [[nodiscard]] const char* name() const noexcept override { return "file"; }

  [[nodiscard]] std::string message(int value) const override {
    switch (static_cast<FileError>(value)) {
      case FileError::notRegular:
        return "Not a regular file";
      case FileError::tooLarge:
        return "The file is too large";
      case FileError::notUtf8:
        return "The file is not UTF-8 text";
      case FileError::unquotablePath:
        return "The application's path contains an apostrophe";
      case FileError::shellOperatorInPath:
        return "The home path contains a character that would make the shell run a command";
    }
    return "Unknown error";
  }
};

}  // namespace

boost::system::error_code make_error_code(FileError error) {
  static const Category category;
  return {static_cast<int>(error), category};
}

}  // namespace quillmark
