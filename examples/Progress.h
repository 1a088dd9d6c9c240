#ifndef ZRSTRING_EXAMPLES_PROGRESS_H
#define ZRSTRING_EXAMPLES_PROGRESS_H

#include <algorithm>
#include <cstdio>

// Whether standard error is a terminal.
#ifdef _WIN32
#include <io.h>
inline bool IsTerminal() { return _isatty(2) != 0; }
#else
#include <unistd.h>
inline bool IsTerminal() { return isatty(2) != 0; }
#endif

/// Shows on standard error which part of a stage is done, if that is a terminal.
class Progress {
 public:
  Progress(const char* stage, double steps) : stage_(stage), steps_(steps), shown_(IsTerminal()) {}
  ~Progress() {
    if (shown_)
      std::fprintf(stderr, "\r\033[K");
  }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void Step() {
    const int percent = static_cast<int>(std::min(100 * ++done_ / steps_, 99.0));
    if (shown_ && percent != percent_)
      std::fprintf(stderr, "\r%s %d %%", stage_, percent_ = percent);
  }

 private:
  const char* stage_;
  double steps_;
  bool shown_;
  double done_ = 0;
  int percent_ = -1;
};

#endif
