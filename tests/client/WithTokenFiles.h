// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "client/Exchanges.h"
#include "support/TokenFiles.h"

namespace quillmark::test {

/// Tests that begin and end without a token file.
class WithTokenFiles : public WithExecutor {
 protected:
  WithTokenFiles() { removeTokens(); }
  ~WithTokenFiles() override { removeTokens(); }
};

}  // namespace quillmark::test
