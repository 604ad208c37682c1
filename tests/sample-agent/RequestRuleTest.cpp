// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "RequestRule.h"

#include <map>
#include <string>

#include <gtest/gtest.h>

#include "model/Codec.h"

namespace quillmark::sample {
namespace {

constexpr std::string_view rightToken = "0123456789abcdef";

const AnswerBodies served{"the status", "the alerts", "the network", "the inventory"};

Request good() {
  Request request;
  request.method = "GET";
  request.target = "/api/status";
  request.hosts = {"127.0.0.1:7823"};
  request.tokens = {rightToken};
  return request;
}

unsigned statusOf(const Request& request) { return answerTo(request, rightToken, served).status; }

TEST(AnswerTo, GivesEachPathItsBody) {
  const std::map<std::string_view, std::string_view> bodies = {{"/api/status", "the status"},
                                                               {"/api/alerts", "the alerts"},
                                                               {"/api/network", "the network"},
                                                               {"/api/inventory", "the inventory"},
                                                               {"/api/status?x=1", "the status"}};
  for (const auto& [target, body] : bodies) {
    auto request = good();
    request.target = target;
    const auto answer = answerTo(request, rightToken, served);
    EXPECT_EQ(answer.status, 200U) << target;
    EXPECT_EQ(answer.body, body);
    EXPECT_EQ(answer.fieldName, "");
  }
}

TEST(AnswerTo, AcceptsItsTwoHosts) {
  auto request = good();
  for (const auto* host : {"127.0.0.1:7823", "localhost:7823", "LocalHost:7823"}) {
    request.hosts = {host};
    EXPECT_EQ(statusOf(request), 200U) << host;
  }
  for (const auto* host : {"127.0.0.1", "localhost", "127.0.0.1:80", "127.0.0.1:78230",
                           "evil.example:7823", "localhost.:7823", "127.0.0.1:7823.evil", ""}) {
    request.hosts = {host};
    EXPECT_EQ(statusOf(request), 421U) << host;
  }
}

TEST(AnswerTo, RequiresExactlyOneHost) {
  auto request = good();
  request.hosts = {};
  EXPECT_EQ(statusOf(request), 400U);
  request.hosts = {"127.0.0.1:7823", "127.0.0.1:7823"};
  EXPECT_EQ(statusOf(request), 400U);
}

TEST(AnswerTo, RequiresExactlyTheToken) {
  auto request = good();
  for (const std::string_view wrong :
       {std::string_view(), rightToken.substr(1), rightToken.substr(0, 15),
        std::string_view("0123456789abcdeF"), std::string_view("x123456789abcdef"),
        std::string_view("0123456789abcdef ")}) {
    request.tokens = {wrong};
    const auto answer = answerTo(request, rightToken, served);
    EXPECT_EQ(answer.status, 401U) << wrong;
    EXPECT_EQ(answer.fieldName, "WWW-Authenticate");
  }
  request.tokens = {};
  EXPECT_EQ(statusOf(request), 401U);
  request.tokens = {rightToken, rightToken};
  EXPECT_EQ(statusOf(request), 401U);
}

TEST(AnswerTo, RefusesOtherPaths) {
  auto request = good();
  for (const auto* target :
       {"/", "", "/api", "/api/", "/api/status/", "/API/status", "//api/status", "/api/status%20",
        "http://127.0.0.1:7823/api/status", "*"}) {
    request.target = target;
    EXPECT_EQ(statusOf(request), 404U) << target;
  }
}

TEST(AnswerTo, ServesGetOnly) {
  auto request = good();
  for (const auto* method : {"POST", "PUT", "DELETE", "HEAD", "OPTIONS", "get", ""}) {
    request.method = method;
    const auto answer = answerTo(request, rightToken, served);
    EXPECT_EQ(answer.status, 405U) << method;
    EXPECT_EQ(answer.fieldName, "Allow");
    EXPECT_EQ(answer.fieldValue, "GET");
  }
}

TEST(AnswerTo, RefusesABody) {
  auto request = good();
  request.hasBody = true;
  EXPECT_EQ(statusOf(request), 413U);
}

TEST(AnswerTo, ChecksHostTokenPathMethodAndBodyInThisOrder) {
  auto request = good();
  request.hasBody = true;
  EXPECT_EQ(statusOf(request), 413U);
  request.method = "POST";
  EXPECT_EQ(statusOf(request), 405U);
  request.target = "/nothing";
  EXPECT_EQ(statusOf(request), 404U);
  request.tokens = {};
  EXPECT_EQ(statusOf(request), 401U);
  request.hosts = {"evil.example"};
  EXPECT_EQ(statusOf(request), 421U);
}

TEST(AnswerTo, ExplainsAnErrorInJsonThatIsNotARecord) {
  auto request = good();
  std::vector<Answer> errors = {malformedAnswer(), headerTooLargeAnswer()};
  request.hasBody = true;
  errors.push_back(answerTo(request, rightToken, served));
  request.method = "POST";
  errors.push_back(answerTo(request, rightToken, served));
  request.target = "/nothing";
  errors.push_back(answerTo(request, rightToken, served));
  request.tokens = {};
  errors.push_back(answerTo(request, rightToken, served));
  request.hosts = {"evil.example"};
  errors.push_back(answerTo(request, rightToken, served));

  for (const auto& error : errors) {
    EXPECT_TRUE(error.body.starts_with(R"({"error":")")) << error.body;
    // Valid JSON, but an object without the record's keys.
    const auto failure = [&](const auto& decoded) {
      return !decoded && decoded.error().kind == DecodeFailure::keyNotFound;
    };
    EXPECT_TRUE(failure(decode<AgentStatus>(std::string(error.body)))) << error.body;
    EXPECT_TRUE(failure(decode<AlertsResponse>(std::string(error.body))));
    EXPECT_TRUE(failure(decode<NetworkResponse>(std::string(error.body))));
    EXPECT_TRUE(failure(decode<InventoryData>(std::string(error.body))));
  }
}

}  // namespace
}  // namespace quillmark::sample
