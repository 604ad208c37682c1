// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "viewmodel/AppPresentation.h"
#include "viewmodel/PrintQString.h"

namespace quillmark {
namespace {

TEST(AppPresentation, PutsAVInFrontOfTheVersion) {
  const auto row = present(InstalledApp{"editor", "2.4.1", {}, {}});
  EXPECT_EQ(row.name, QStringLiteral("editor"));
  EXPECT_TRUE(row.hasVersion);
  EXPECT_EQ(row.version, QStringLiteral("v2.4.1"));
  EXPECT_EQ(row.accessibleName, QStringLiteral("editor, v2.4.1"));
}

TEST(AppPresentation, HasNoVersionWithoutOne) {
  const auto row = present(InstalledApp{"editor", {}, {}, {}});
  EXPECT_FALSE(row.hasVersion);
  EXPECT_EQ(row.accessibleName, QStringLiteral("editor"));
}

TEST(AppPresentation, TreatsAnEmptyVersionAsPresent) {
  const auto row = present(InstalledApp{"editor", "", {}, {}});
  EXPECT_TRUE(row.hasVersion);
  EXPECT_EQ(row.version, QStringLiteral("v"));
}

TEST(AppPresentation, KeepsAVThatIsAlreadyThere) {
  EXPECT_EQ(present(InstalledApp{"editor", "v1", {}, {}}).version, QStringLiteral("vv1"));
}

TEST(AppPresentation, ShowsNeitherPublisherNorPath) {
  const auto row = present(InstalledApp{"editor", "1", "publisher", "/usr/bin/editor"});
  EXPECT_EQ(row.name, QStringLiteral("editor"));
  EXPECT_EQ(row.version, QStringLiteral("v1"));
  EXPECT_EQ(row.accessibleName, QStringLiteral("editor, v1"));
}

}  // namespace
}  // namespace quillmark
