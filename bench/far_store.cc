// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

// How long a store on a server that is far away keeps the program waiting.
//
//     far_store SOCKET DATABASE MS ROUNDS
//     far_store SOCKET DATABASE MS -- COMMAND [ARGUMENT...]
//
// SOCKET is where a PostgreSQL server listens (".../.s.PGSQL.5432"), MS how long everything takes
// in each direction; a connection costs one way to and fro before its first byte. Prints the median
// and the slowest of each call in ms: from the making of the store to its settings, then single
// commands. With a COMMAND, runs it with such a store in its surroundings instead (MELVADO_STORE,
// and MELVADO_SESSION as a host hands it on), so that `start_time` can measure a whole program.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "store/host_store.h"
#include "store/server_proxy.h"

namespace {

using Array = vmod17::TaggedValue::Array;

class Times {
 public:
  void Measure(const char* name, const std::function<void()>& call) {
    QElapsedTimer clock;
    clock.start();
    call();
    ms_[name].push_back(static_cast<double>(clock.nsecsElapsed()) / 1e6);
  }
  void Print() {
    for (auto& [name, ms] : ms_) {
      std::sort(ms.begin(), ms.end());
      std::printf("%-22s median %7.1f ms, slowest %7.1f ms\n", name.c_str(), ms[ms.size() / 2],
                  ms.back());
    }
  }

 private:
  std::map<std::string, std::vector<double>> ms_;
};

}  // namespace

int main(int argc, char* argv[]) {
  if (argc < 5) {
    std::fprintf(stderr, "usage: far_store SOCKET DATABASE MS ROUNDS|-- COMMAND [ARGUMENT...]\n");
    return 2;
  }
  const QCoreApplication application(argc, argv);
  const QTemporaryDir data;
  vmod17::ServerProxy proxy(argv[1]);
  vmod17::StoreOptions options;
  options.address =
      "postgresql://melvado@127.0.0.1:" + std::to_string(proxy.port()) + '/' + argv[2];
  options.data_folder = data.path().toStdString();
  options.users_at_start = true;
  {
    // The tables are there, as they are at every start but the first.
    vmod17::HostStore store(options);
    store.SetLanguage("English");
    store.SetUser({"4711", "Berg", "Anna"});
    qputenv("MELVADO_STORE", QByteArray::fromStdString(options.address));
    qputenv("MELVADO_SESSION", QByteArray::fromStdString(store.Session()));
  }
  proxy.Delay(std::chrono::milliseconds(std::atoi(argv[3])));
  if (QString(argv[4]) == "--") {
    QStringList words = application.arguments().mid(5);
    const QString program = words.takeFirst();
    return QProcess::execute(program, words);
  }
  Times times;
  for (int round = 0; round < std::atoi(argv[4]); ++round) {
    std::unique_ptr<vmod17::HostStore> store;
    times.Measure("0 start to settings", [&] {
      store = std::make_unique<vmod17::HostStore>(options);
      store->User();
    });
    const auto service = store->Service();
    vmod17::TaggedValue result;
    times.Measure("1 LOGMESS", [&] { service->Action("LOGMESS", "melvado 1.0.0", result); });
    times.Measure("2 READ", [&] { service->Action("READ", Array{"vmod17", "E1"}, result); });
    times.Measure("3 STORE of a pair", [&] {
      service->Together([&] {
        service->Action("STORE", Array{"vmod17", "E1", Array(20, "17")}, result);
        service->Action("STORE", Array{"vmod17", "A1", Array(400, "17")}, result);
      });
    });
    times.Measure("4 users", [&] { store->Users(); });
  }
  times.Print();
  return 0;
}
