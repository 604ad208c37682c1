// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace quillmark {

/// The address of the session bus; empty if there is none. Asking Qt instead would start
/// one. Any thread, as long as no thread changes the environment at the same time.
[[nodiscard]] std::string sessionBusAddress();

/// Makes this process, and the programs that it starts, work without the session bus if the
/// bus, or the accessibility service on it, accepts messages but does not answer, for example
/// because a signal has stopped it. Qt and other libraries would wait for such a bus without a
/// limit, and for such a service for 50 seconds. Takes two and a half seconds if one of them
/// does not answer, otherwise two exchanges. Call before Qt is set
/// up and before threads start.
void avoidSilentSessionBus();

}  // namespace quillmark
