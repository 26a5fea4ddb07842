#include "config/ConfigurationFolder.h"
#include "config/ConfigurationSchema.h"
#include "desktop/Application.h"
#include "desktop/CurrentDesktop.h"
#include "gui/monkey/Monkey.h"
#include "gui/monkey/RandomDesktop.h"
#include "support/TestStore.h"

#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

using namespace QmChart6;

/// monkey SEEDS EVENTS: so many events from each of so many seeds.
int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: monkey SEEDS EVENTS\n", stderr);
        return 2;
    }
    EnsureApplication();
    const int seeds = std::atoi(argv[1]);
    int events = 0;
    for (int seed = 1; seed <= seeds; ++seed) {
        const TestStore store(Engine::Sqlite, ConfigurationSchema());
        SetConfigurationFolder(store.Folder());
        const QTemporaryDir folder;
        Monkey monkey(static_cast<unsigned>(seed), std::atoi(argv[2]));
        RandomDesktop desktop(monkey.Random(), folder.path());
        const ScopedDesktop scope(desktop);
        std::printf("seed %d\n", seed);
        std::fflush(stdout);
        events += monkey.Run();
    }
    std::printf("%d events from %d seeds\n", events, seeds);
    return events == seeds * std::atoi(argv[2]) ? 0 : 1;
}
