// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "client/HostileAnswers.h"

#include "support/Backend.h"

namespace quillmark::test {
namespace {

using namespace std::string_literals;
using enum HostileAnswer::Yields;
using Answers = std::vector<HostileAnswer>;

/// A 200 answer with this additional field.
HostileAnswer withField(const std::string& field, const std::string& body,
                        HostileAnswer::Yields yields) {
  return {field.substr(0, 60), answer("200 OK", body, field + "\r\n"), yields};
}

}  // namespace

std::string repeated(int count, std::string_view piece) {
  std::string text;
  for (int i = 0; i < count; ++i) {
    text += piece;
  }
  return text;
}

Answers answersOfEveryStatus(const std::string& body, const std::string& elsewhere) {
  Answers answers;
  const std::string fields = "Location: " + elsewhere +
                             "/api/status\r\nWWW-Authenticate: Basic realm=\"x\"\r\n"
                             "Proxy-Authenticate: Basic realm=\"x\"\r\nRetry-After: 0\r\n";
  for (const int status : {200, 201, 202, 203, 205, 206, 226, 300, 301, 302, 303, 305, 306,
                           307, 308, 400, 401, 402, 403, 404, 405, 406, 407, 408, 410, 418,
                           421, 426, 429, 451, 500, 501, 502, 503, 504, 511, 599, 999}) {
    const std::string code = std::to_string(status);
    answers.push_back({code, answer(code + " Status", body, fields), theRecord});
    answers.push_back(
        {code + " and an error", answer(code + " Status", R"({"error":"no"})", fields), nothing});
  }
  for (const std::string code : {"204", "304"}) {
    answers.push_back({code, answer(code + " Status", body, fields), nothing});
  }
  answers.push_back({"101", "HTTP/1.1 101 Over\r\nUpgrade: h2c\r\n\r\n" + okAnswer(body), nothing});
  const std::string interim = "HTTP/1.1 103 Early Hints\r\nLink: <" + elsewhere + "/>\r\n\r\n";
  answers.push_back({"some 1xx before", repeated(16, interim) + okAnswer(body), theRecord});
  answers.push_back({"many 1xx before", repeated(17, interim) + okAnswer(body), nothing});
  return answers;
}

Answers answersWithDemands(const std::string& body, const std::string& elsewhere) {
  Answers answers;
  for (const auto& field :
       {"Set-Cookie: id=1; Path=/; Max-Age=99999"s,
        "Connection: keep-alive\r\nKeep-Alive: timeout=99"s, "Connection: close"s,
        "Connection: Upgrade\r\nUpgrade: websocket"s, "Refresh: 0; url=" + elsewhere + "/",
        "Link: <" + elsewhere + "/>; rel=preload", "Location: " + elsewhere + "/",
        "Content-Location: " + elsewhere + "/", "Alt-Svc: h3=\"" + elsewhere.substr(7) + "\"",
        "Strict-Transport-Security: max-age=99999"s,
        "Report-To: {\"endpoints\":[{\"url\":\"" + elsewhere + "\"}]}",
        "Cache-Control: max-age=99999, immutable"s, "ETag: \"x\""s, "Clear-Site-Data: \"*\""s,
        "Content-Type: text/html; charset=utf-16"s, "Content-Encoding: gzip"s,
        "Content-Encoding: br"s, "X: a\r\n folded"s, "X: caf\xE9"s}) {
    answers.push_back(withField(field, body, theRecord));
  }
  for (const auto& field :
       {"X: a\0b"s, "X\0: a"s, "X : a"s, "X y: a"s, ": a"s, "no colon"s, "X: a\rb"s, "\x80: a"s,
        repeated(1'000'000, "a: b\r\n") + "c: d", "X: " + std::string(1'000'000, 'x')}) {
    answers.push_back(withField(field, body, nothing));
  }
  return answers;
}

Answers answersOfOtherProtocols(const std::string& body) {
  return {
      {"nothing", "", nothing},
      {"HTTP/0.9", body, nothing},
      {"HTTP/1.0", "HTTP/1.0 200 OK\r\n\r\n" + body, theRecord},
      {"HTTP/1.0 kept",
       "HTTP/1.0 200 OK\r\nConnection: keep-alive\r\nContent-Length: " +
           std::to_string(body.size()) + "\r\n\r\n" + body,
       theRecord},
      {"HTTP/1.2", "HTTP/1.2 200 OK\r\n\r\n" + body, nothing},
      {"HTTP/2", "HTTP/2 200\r\n\r\n" + body, nothing},
      {"HTTP/2 frame", "\0\0\x06\x04\0\0\0\0\0\0\x04\0\0\x10\0"s, nothing},
      {"ICY", "ICY 200 OK\r\n\r\n" + body, nothing},
      {"RTSP", "RTSP/1.0 200 OK\r\n\r\n" + body, nothing},
      {"HTTP/1.1 in lower case", "http/1.1 200 OK\r\n\r\n" + body, nothing},
      {"a blank before", " HTTP/1.1 200 OK\r\n\r\n" + body, nothing},
      {"two blanks within", "HTTP/1.1  200 OK\r\n\r\n" + body, nothing},
      {"a status of four digits", "HTTP/1.1 2000 OK\r\n\r\n" + body, nothing},
      {"a status of letters", "HTTP/1.1 abc OK\r\n\r\n" + body, nothing},
      {"SSH", "SSH-2.0-server\r\n", nothing},
      {"SMTP", "220 ready ESMTP\r\n", nothing},
      {"FTP", "220-welcome\r\n220 ready\r\n", nothing},
      {"TLS", "\x15\x03\x01\0\x02\x02\x28"s, nothing},
      {"NULs", std::string(100'000, '\0'), nothing},
      {"a request", "GET / HTTP/1.1\r\nHost: a\r\n\r\n", nothing},
      {"HTML", "<html>" + body + "</html>\n", nothing},
      {"no reason", "HTTP/1.1 200\r\n\r\n" + body, nothing},
      {"an empty reason", "HTTP/1.1 200 \r\n\r\n" + body, theRecord},
      {"a status of two digits", "HTTP/1.1 20 OK\r\n\r\n" + body, nothing},
      {"a status below all", "HTTP/1.1 000 OK\r\n\r\n" + body, theRecord},
      {"a long reason", "HTTP/1.1 200 " + std::string(1'000'000, 'x') + "\r\n\r\n" + body, nothing},
      {"blank lines before", "\r\n\r\n" + okAnswer(body), nothing},
  };
}

}  // namespace quillmark::test
