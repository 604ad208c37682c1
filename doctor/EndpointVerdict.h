// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Asking.h"
#include "Contents.h"
#include "Finding.h"
#include "Harmless.h"
#include "PortCheck.h"

namespace quillmark::doctor {

/// One of the questions that the panel asks.
struct Endpoint {
  const char* check;
  std::string_view path;
  Contents (*read)(std::string_view body, const Harmless& harmless);
  const char* shownAs;  ///< what the panel shows of it
};

/// What an answer comes to.
struct Verdict {
  Finding finding;
  std::optional<std::string> status;  ///< the agent's word, if that is what was asked for
  std::string reason;  ///< why the panel shows nothing of it, as a clause; empty when it does
};

[[nodiscard]] Verdict notAsked(const Endpoint& endpoint, const std::string& why);
[[nodiscard]] Verdict judge(const Endpoint& endpoint, const Asked& asked, const Port& port,
                            const Harmless& harmless);

}  // namespace quillmark::doctor
