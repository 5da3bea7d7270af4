// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/desk/single_instance.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QSocketNotifier>
#include <QSysInfo>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <utility>

// Older C libraries declare it for C alone.
extern "C" {
#include <sys/pidfd.h>

#include "base/text_ids.h"
}

namespace vmod17 {
namespace {

using std::chrono::milliseconds;

const Notice kCannotBeEnded{
    text_id::kCouldNotBeEnded,
    "It could not be ended. Sign out of this computer and in again, then start the program once "
    "more.",
    {}};

/// A descriptor that is closed with its owner.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  int number() const { return number_; }
  explicit operator bool() const { return number_ >= 0; }

  /// Whether there is something to read, or its end, in time.
  bool Wakes(milliseconds time) const {
    pollfd what{number_, POLLIN, 0};
    int woken = -1;
    do {
      woken = poll(&what, 1, static_cast<int>(time.count()));
    } while (woken < 0 && errno == EINTR);
    return woken > 0;
  }

 private:
  int number_;
};

/// A folder of the user's own on this machine; "" when none can be had. Its name may be of any
/// bytes.
std::string RuntimeFolder() {
  const char* given = std::getenv("XDG_RUNTIME_DIR");
  if (given != nullptr && *given != '\0' && access(given, W_OK) == 0) return given;
  const char* temporary = std::getenv("TMPDIR");
  const std::string folder =
      std::string(temporary != nullptr && *temporary != '\0' ? temporary : "/tmp") + "/melvado-" +
      std::to_string(getuid());
  mkdir(folder.c_str(), S_IRWXU);
  // Anybody can make a folder of this name there. One of another user's is of no use.
  struct stat facts {};
  const bool is_folder = lstat(folder.c_str(), &facts) == 0 && S_ISDIR(facts.st_mode);
  if (!is_folder || facts.st_uid != getuid()) return {};
  chmod(folder.c_str(), S_IRWXU);
  return folder;
}

std::string SocketPath(const std::string& key) {
  const std::string folder = RuntimeFolder();
  if (folder.empty()) return {};
  // A folder may be shared by machines, a process not.
  const QByteArray whole = QSysInfo::machineHostName().toUtf8() + '\n' + key.c_str();
  const QByteArray hash = QCryptographicHash::hash(whole, QCryptographicHash::Sha1).toHex();
  return folder + "/melvado-" + hash.left(24).toStdString();
}

/// Nothing for a path that is too long for a socket.
bool FillAddress(sockaddr_un& address, const std::string& path) {
  address = {};
  address.sun_family = AF_UNIX;
  if (path.empty() || path.size() >= sizeof address.sun_path) return false;
  std::memcpy(address.sun_path, path.c_str(), path.size());
  return true;
}

Descriptor MakeSocket() {
  return Descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

/// Between two attempts at what another process has in its hands.
constexpr milliseconds kPause{10};

void Pause() { poll(nullptr, 0, kPause.count()); }

/// Keeps others of the same path out, for a while at the most: who holds it may hang, too.
Descriptor Lock(const std::string& path, milliseconds patience) {
  Descriptor file(open((path + ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR));
  for (milliseconds waited{0}; file && waited < patience; waited += kPause) {
    if (flock(file.number(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) break;
    Pause();
  }
  return file;
}

}  // namespace

/// A question to the process that listens on a socket, which answers by hanging up.
class SingleInstance::Call {
 public:
  enum class Heard { kNothing, kAnswer, kItsEnd };

  explicit Call(const std::string& path) : socket_(MakeSocket()), process_(-1) {
    if (FillAddress(address_, path)) Connect();
  }

  /// Whether a process listens.
  bool there() const { return line_ != Line::kNone; }

  Heard Wait(milliseconds time) {
    for (; line_ == Line::kBusy && time >= kPause; time -= kPause) {
      Pause();
      Connect();
      if (!there()) return Heard::kItsEnd;
    }
    if (line_ != Line::kOpen || !socket_.Wakes(time)) return Heard::kNothing;
    char byte = 0;
    // One that ends with the question in its queue resets it.
    return read(socket_.number(), &byte, 1) < 0 ? Heard::kItsEnd : Heard::kAnswer;
  }

  /// Returns whether the process has ended. It is the one that listened: its number is held since
  /// the connection was made, which is still open.
  bool End(milliseconds time) const {
    if (!process_) return false;
    Signal(SIGTERM);
    Signal(SIGCONT);  // one that was stopped takes its leave as others do
    if (process_.Wakes(time)) return true;
    Signal(SIGKILL);
    return process_.Wakes(kPatience);
  }

 private:
  /// Where too many wait already, the process cannot be known, but there is one.
  enum class Line { kNone, kBusy, kOpen };

  void Connect() {
    const auto* const generic = reinterpret_cast<const sockaddr*>(&address_);
    if (connect(socket_.number(), generic, sizeof address_) != 0) {
      line_ = errno == EAGAIN ? Line::kBusy : Line::kNone;
      return;
    }
    line_ = Line::kOpen;
    ucred peer{};
    socklen_t size = sizeof peer;
    const bool known = getsockopt(socket_.number(), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0;
    if (known && peer.uid == getuid()) process_ = Descriptor(pidfd_open(peer.pid, 0));
  }
  void Signal(int number) const { pidfd_send_signal(process_.number(), number, nullptr, 0); }

  Descriptor socket_;
  Descriptor process_;
  sockaddr_un address_{};
  Line line_ = Line::kNone;
};

/// The socket on which this process answers.
class SingleInstance::Listener {
 public:
  Listener(const std::string& path, std::function<void()> asked)
      : path_(path), socket_(MakeSocket()) {
    if (!Listen()) return;
    // A socket that does not listen would wake the program without end.
    notifier_.emplace(socket_.number(), QSocketNotifier::Read);
    QObject::connect(&*notifier_, &QSocketNotifier::activated, &*notifier_,
                     [this, asked = std::move(asked)] {
                       while (HangUp()) {
                       }
                       asked();
                     });
  }
  // The name goes before the socket: in between it could be another process's already.
  ~Listener() {
    if (bound_) unlink(path_.c_str());
  }
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

 private:
  bool Listen() {
    sockaddr_un address;
    if (!FillAddress(address, path_)) return false;
    unlink(path_.c_str());  // of a process that was killed
    const auto* const generic = reinterpret_cast<const sockaddr*>(&address);
    bound_ = bind(socket_.number(), generic, sizeof address) == 0;
    if (!bound_) return false;
    chmod(path_.c_str(), S_IRUSR | S_IWUSR);
    return listen(socket_.number(), SOMAXCONN) == 0;
  }
  /// The answer to one call; false when there is none.
  bool HangUp() const {
    return bool(Descriptor(accept4(socket_.number(), nullptr, nullptr, SOCK_CLOEXEC)));
  }

  const std::string path_;
  const Descriptor socket_;
  bool bound_ = false;
  std::optional<QSocketNotifier> notifier_;  // while it listens
};

SingleInstance::SingleInstance(const std::string& key, milliseconds patience)
    : path_(SocketPath(key)), patience_(patience) {}

SingleInstance::~SingleInstance() = default;

void SingleInstance::Release() { listener_.reset(); }

SingleInstance::Claimed SingleInstance::Claim() {
  if (path_.empty()) return Claimed::kFirst;
  for (;;) {
    {
      // Of two that start at once only one may find that there is no other.
      const Descriptor lock = Lock(path_, patience_);
      call_ = std::make_unique<Call>(path_);
      if (!call_->there()) {
        listener_ = std::make_unique<Listener>(path_, [this] {
          if (come_to_front) come_to_front();
        });
        return Claimed::kFirst;
      }
    }
    switch (call_->Wait(patience_)) {
      case Call::Heard::kAnswer:
        return Claimed::kAnswered;
      case Call::Heard::kNothing:
        return Claimed::kSilent;
      case Call::Heard::kItsEnd:
        break;
    }
  }
}

SingleInstance::Claimed SingleInstance::EndOther(milliseconds time) {
  if (call_->Wait(milliseconds{0}) == Call::Heard::kAnswer) return Claimed::kAnswered;
  if (!call_->End(time)) return Claimed::kSilent;
  return Claim();
}

bool SingleInstance::BringToFront(const std::string& key) {
  return Call(SocketPath(key)).Wait(kPatience) == Call::Heard::kAnswer;
}

SingleInstance::Claimed ClaimOrAsk(SingleInstance& instance, MessageBox& messages,
                                   const Notice& question, const Wording& say) {
  using Claimed = SingleInstance::Claimed;
  const Claimed claimed = instance.Claim();
  if (claimed != Claimed::kSilent) return claimed;
  const MessageBox::Answer answer = messages.Ask(say(question), "Melvado", MessageBox::Answer::kNo);
  if (answer == MessageBox::Answer::kNo) return claimed;
  const Claimed now = instance.EndOther();
  if (now == Claimed::kSilent) messages.Warn(say(kCannotBeEnded), "Melvado");
  return now;
}

}  // namespace vmod17
