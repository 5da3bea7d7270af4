// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <sys/resource.h>

#include <csignal>
#include <cstdint>

namespace vmod17 {

/// Files can become so large while it lives, as on a disk that is nearly full.
class SmallFiles {
 public:
  explicit SmallFiles(std::int64_t bytes) : ignored_(::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit small{static_cast<rlim_t>(bytes), before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
  }
  ~SmallFiles() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    ::signal(SIGXFSZ, ignored_);
  }
  SmallFiles(const SmallFiles&) = delete;
  SmallFiles& operator=(const SmallFiles&) = delete;

 private:
  rlimit before_{};
  sighandler_t ignored_;
};

}  // namespace vmod17
