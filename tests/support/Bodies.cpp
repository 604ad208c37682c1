// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/Bodies.h"

#include "support/Backend.h"

namespace quillmark::test {

std::string networkBodyOf(int count, const std::string& state) {
  std::string body = R"({"connections":[)";
  for (int i = 0; i < count; ++i) {
    body += i == 0 ? "" : ",";
    body += R"({"protocol":"tcp","local_address":"127.0.0.1","local_port":")" + std::to_string(i) +
            R"(","remote_address":"10.0.0.5","remote_port":"443","state":")" + state + R"("})";
  }
  return body + "]}";
}

std::map<std::string, std::string> goodAnswers() {
  return {{"/api/status", okAnswer(statusBody)},
          {"/api/alerts", okAnswer(alertsBody)},
          {"/api/network", okAnswer(networkBody)},
          {"/api/inventory", okAnswer(inventoryBody)}};
}

}  // namespace quillmark::test
