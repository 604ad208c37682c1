// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Preloaded into an unmodified Qt program, this logs what the UI thread does to the
// file that QUILLMARK_OBSERVER names, one line each:
//
//   busy START SECONDS    the thread did not wait for events during this time
//   frame TIME            a frame reached the window
//
// Times are seconds of the monotonic clock. Every event loop waits by one of the two
// system calls that are replaced here.

#include <cstdio>
#include <cstdlib>
#include <ctime>

#include <QGuiApplication>
#include <QQuickWindow>

#include <dlfcn.h>
#include <poll.h>
#include <unistd.h>

namespace {

// In seconds: a notable part of a frame. Shorter spans would flood the log.
constexpr double minLoggedSpan = 0.0005;

std::FILE* log = nullptr;
double awakeSince = 0;

double now() {
  timespec time{};
  clock_gettime(CLOCK_MONOTONIC, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

bool isObservedThread() { return log != nullptr && gettid() == getpid(); }

void logBusySpan() {
  if (const double span = now() - awakeSince; span >= minLoggedSpan) {
    std::fprintf(log, "busy %.6f %.6f\n", awakeSince, span);
  }
}

template <class Wait>
int observedWait(bool sleeps, Wait wait) {
  if (!sleeps || !isObservedThread()) {
    return wait();
  }
  logBusySpan();
  const int result = wait();
  awakeSince = now();
  return result;
}

template <class Function>
Function* next(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

void watchFrames(QWindow* window) {
  auto* const quick = qobject_cast<QQuickWindow*>(window);
  if (quick == nullptr || quick->property("observed").toBool()) {
    return;
  }
  quick->setProperty("observed", true);
  QObject::connect(
      quick, &QQuickWindow::frameSwapped, quick, [] { std::fprintf(log, "frame %.6f\n", now()); },
      Qt::DirectConnection);
}

void observe() {
  // Child processes are not observed, and must not be slowed down.
  unsetenv("LD_PRELOAD");
  const char* const path = std::getenv("QUILLMARK_OBSERVER");
  awakeSince = now();
  log = path == nullptr ? nullptr : std::fopen(path, "we");
  if (log == nullptr) {
    return;
  }
  setvbuf(log, nullptr, _IOLBF, BUFSIZ);
  QObject::connect(qGuiApp, &QGuiApplication::focusWindowChanged, qGuiApp, &watchFrames);
}

}  // namespace

extern "C" {

int poll(pollfd* descriptors, nfds_t count, int timeout) {
  static auto* const wait = next<decltype(poll)>("poll");
  return observedWait(timeout != 0, [=] { return wait(descriptors, count, timeout); });
}

int ppoll(pollfd* descriptors, nfds_t count, const timespec* timeout, const sigset_t* mask) {
  static auto* const wait = next<decltype(ppoll)>("ppoll");
  const bool sleeps = timeout == nullptr || timeout->tv_sec != 0 || timeout->tv_nsec != 0;
  return observedWait(sleeps, [=] { return wait(descriptors, count, timeout, mask); });
}

}  // extern "C"

Q_COREAPP_STARTUP_FUNCTION(observe)
