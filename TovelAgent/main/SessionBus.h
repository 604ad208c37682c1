// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace quillmark {

/// The address of the session bus; empty if there is none. Asking Qt instead would start
/// one. Any thread, as long as no thread changes the environment at the same time.
[[nodiscard]] std::string sessionBusAddress();

/// Makes this process, and the programs that it starts, do without the session bus if it
/// accepts connections but does not answer, as a bus that is stopped by a signal: Qt and
/// other libraries would wait for it without a limit. Then takes two and a half seconds,
/// otherwise one exchange with the bus. Call before Qt is set up and before threads start.
void avoidSilentSessionBus();

}  // namespace quillmark
