// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// A module that does what the variable FAKE_MODULE says, word by word: a word in capitals is said
// as a line, "wait" waits for SIGTERM, "hang" until it is killed, "mortal" until SIGTERM ends it,
// "abort" and a number end it.
// Before that it writes what it was given of the surroundings to the file that FAKE_MODULE_NOTES
// names.

#include <signal.h>
#include <unistd.h>

#include <cctype>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

namespace {

void WaitForTheEnd() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGTERM);
  int signal = 0;
  sigwait(&signals, &signal);
}

std::string Given(const char* name) {
  const char* value = std::getenv(name);
  return std::string(name) + '=' + (value != nullptr ? value : "none") + '\n';
}

}  // namespace

int main() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGTERM);
  sigprocmask(SIG_BLOCK, &signals, nullptr);
  if (const char* notes = std::getenv("FAKE_MODULE_NOTES")) {
    std::ofstream(notes, std::ios::app) << Given("MELVADO_HOST") << Given("MELVADO_STORE")
                                        << Given("MELVADO_SESSION") << Given("MELVADO_MIDI");
  }
  const char* script = std::getenv("FAKE_MODULE");
  std::istringstream words(script != nullptr ? script : "");
  for (std::string word; words >> word;) {
    if (word == "wait") {
      WaitForTheEnd();
    } else if (word == "hang") {
      for (;;) pause();
    } else if (word == "mortal") {
      sigprocmask(SIG_UNBLOCK, &signals, nullptr);
      for (;;) pause();
    } else if (word == "abort") {
      std::abort();
    } else if (std::isdigit(static_cast<unsigned char>(word[0]))) {
      std::exit(std::stoi(word));
    } else {
      std::cout << word << std::endl;
    }
  }
}
