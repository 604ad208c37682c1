// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/TextFile.h"

#include <array>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <boost/system/errc.hpp>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "platform/FileError.h"
#include "platform/TemporaryFolder.h"
#include "support/TokenFiles.h"

namespace quillmark::test {
namespace {

namespace errc = boost::system::errc;

constexpr std::size_t limit = 100;

class TextFile : public testing::Test {
 protected:
  const TemporaryFolder folder;
  const std::string path = folder / "file";
};

TEST_F(TextFile, ReadsARegularFile) {
  writeFile(path, "first\nsecond\r\n");
  EXPECT_EQ(readTextFile(path, limit).value(), "first\nsecond\r\n");
}

TEST_F(TextFile, ReadsAnEmptyFile) {
  writeFile(path, "");
  EXPECT_EQ(readTextFile(path, 0).value(), "");
}

TEST_F(TextFile, ReadsEveryByte) {
  const std::string text("\0\xC3\xA9\xEF\xBB\xBF\0", 7);
  writeFile(path, text);
  EXPECT_EQ(readTextFile(path, limit).value(), text);
}

TEST_F(TextFile, ReadsFilesWithoutASize) {
  const auto text = readTextFile("/proc/self/status", 1 << 20);
  EXPECT_EQ(std::filesystem::file_size("/proc/self/status"), 0U);
  EXPECT_TRUE(text.value().starts_with("Name:"));
}

TEST_F(TextFile, ReadsExactlyToTheLimit) {
  for (const std::size_t size : {1U, 100U, 32767U, 32768U, 32769U, 100000U}) {
    writeFile(path, std::string(size, 'x'));
    EXPECT_EQ(readTextFile(path, size).value(), std::string(size, 'x'));
    EXPECT_EQ(readTextFile(path, size - 1).error(), FileError::tooLarge) << size;
  }
}

TEST_F(TextFile, FollowsALink) {
  writeFile(path, "text");
  std::filesystem::create_symlink("file", folder / "link");
  EXPECT_EQ(readTextFile(folder / "link", limit).value(), "text");
}

TEST_F(TextFile, RefusesAMissingFile) {
  EXPECT_EQ(readTextFile(path, limit).error(), errc::no_such_file_or_directory);
  EXPECT_EQ(readTextFile(path + "/in/no/folder", limit).error(), errc::no_such_file_or_directory);
  EXPECT_EQ(readTextFile("", limit).error(), errc::no_such_file_or_directory);
}

TEST_F(TextFile, RefusesALinkToNothingOrToItself) {
  std::filesystem::create_symlink("nothing", folder / "dangling");
  std::filesystem::create_symlink("circle", folder / "circle");
  EXPECT_EQ(readTextFile(folder / "dangling", limit).error(), errc::no_such_file_or_directory);
  EXPECT_EQ(readTextFile(folder / "circle", limit).error(), errc::too_many_symbolic_link_levels);
}

TEST_F(TextFile, RefusesAFolder) {
  EXPECT_EQ(readTextFile(folder.path(), limit).error(), FileError::notRegular);
}

// Both would make a plain open or read wait for ever.
TEST_F(TextFile, RefusesAFifoAtOnce) {
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  EXPECT_EQ(readTextFile(path, limit).error(), FileError::notRegular);

  const int writer = open(path.c_str(), O_RDWR);
  ASSERT_GE(writer, 0);
  EXPECT_EQ(write(writer, "text", 4), 4);
  EXPECT_EQ(readTextFile(path, limit).error(), FileError::notRegular);
  close(writer);
}

TEST_F(TextFile, RefusesDevices) {
  EXPECT_EQ(readTextFile("/dev/zero", limit).error(), FileError::notRegular);
  EXPECT_EQ(readTextFile("/dev/null", limit).error(), FileError::notRegular);
}

TEST_F(TextFile, RefusesASocket) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  ASSERT_LT(path.size(), sizeof(address.sun_path));
  path.copy(static_cast<char*>(address.sun_path), path.size());
  const int listener = socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_EQ(bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
  EXPECT_EQ(readTextFile(path, limit).error(), errc::no_such_device_or_address);
  close(listener);
}

TEST_F(TextFile, RefusesWhatIsNotUtf8) {
  for (const std::string text : {"\xFF", "good\xE9", "\xED\xA0\x80", "\xE2\x82"}) {
    writeFile(path, text);
    EXPECT_EQ(readTextFile(path, limit).error(), FileError::notUtf8) << text;
  }
}

TEST_F(TextFile, ReadsACharacterAcrossTwoBlocks) {
  const std::string text = std::string(32767, 'x') + "\xE2\x82\xAC";
  writeFile(path, text);
  EXPECT_EQ(readTextFile(path, 40000).value(), text);
}

TEST_F(TextFile, LeavesNoDescriptorOpen) {
  writeFile(path, "text");
  writeFile(folder / "bad", "\xFF");
  const auto openDescriptors = [] {
    const std::filesystem::directory_iterator all("/proc/self/fd");
    return std::distance(begin(all), end(all));
  };
  const auto before = openDescriptors();
  EXPECT_TRUE(readTextFile(path, limit).has_value());
  EXPECT_TRUE(readTextFile(path, 1).has_error());
  EXPECT_TRUE(readTextFile(folder / "bad", limit).has_error());
  EXPECT_TRUE(readTextFile(folder.path(), limit).has_error());
  EXPECT_EQ(openDescriptors(), before);
}

}  // namespace
}  // namespace quillmark::test
