#include "platform/system/DetachedThreads.h"
#include "platform/system/SystemPrograms.h"

#include "base/Files.h"
#include "support/Eventually.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>

#include <fstream>
#include <future>

namespace ravelo {

using namespace Qt::StringLiterals;

namespace {

TEST(DetachedThreads, doNotWaitForAJobThatHangs) {
    std::promise<void> gate;
    const std::shared_future<void> open = gate.get_future().share();
    std::string ends;
    const auto ended = std::make_shared<std::atomic<int>>(0);
    {
        DetachedThreads threads;
        const Handle hung =
            threads.run([open, ended] { open.wait(), ++*ended; }, [&] { ends += 'h'; });
        const Handle quick = threads.run([] {}, [&] { ends += 'q'; });
        (void)threads.run([ended] { ++*ended; }, [&] { ends += 'd'; });
        EXPECT_TRUE(eventually([&] { return ends == "q" && *ended == 1; })) << ends;

        std::vector<Handle> more;
        more.reserve(20);
        for (int i = 0; i < 20; ++i) {
            more.push_back(threads.run([open] { open.wait(); }, [&] { ends += 'm'; }));
        }
        EXPECT_TRUE(eventually([&] { return ends == "qmmmmm"; }))
            << "all but 15 are left out: " << ends;

        DetachedThreads others(1);
        const Handle other =
            others.run([open, ended] { ++*ended, open.wait(); }, [&] { ends += 'o'; });
        EXPECT_TRUE(eventually([&] { return *ended == 2; })) << "not run in a separate pool";
        const Handle tooMany = others.run([ended] { ++*ended; }, [&] { ends += 't'; });
        EXPECT_TRUE(eventually([&] { return ends == "qmmmmmt"; })) << ends;
        EXPECT_EQ(*ended, 2) << "two jobs in a pool of one";
    }
    ends = "q";
    gate.set_value();
    EXPECT_TRUE(eventually([&] { return *ended == 3; }));
    EXPECT_EQ(ends, "q") << "notified after destruction";
}

TEST(SystemPrograms, findsAndStartsThemWithAnyBytes) {
    const QTemporaryDir folder;
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", path + ":/no/such:" + folder.path().toUtf8());
    const QString script = makeProgram(
        folder.filePath(u"ravelo test"_s),
        "printf '<%s>' \"$GIVEN\" \"$OURS\" \"$@\" > \"$0.part\"\nmv \"$0.part\" \"$0.out\"\n");
    DetachedThreads threads;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"GIVEN"_s, u"given"_s);
    qputenv("OURS", "ours");
    SystemPrograms programs(threads, environment);
    QList<QByteArray> found;
    const auto note = [&](const QByteArray& program) {
        found.append(program);
    };
    const Handle first = programs.find({u"ravelo-none"_s, u"ravelo test"_s}, note);
    EXPECT_TRUE(eventually([&] { return found.size() == 1; }));
    const Handle second = programs.find({u"ravelo-none"_s}, note);
    EXPECT_TRUE(eventually([&] { return found.size() == 2; }));
    qputenv("PATH", path);
    EXPECT_EQ(found, (QList<QByteArray>{script.toUtf8(), {}}));

    programs.start(found[0], {"--x", "a b;$(id)", "\xff\n", ""});
    programs.start("/no/such", {});
    EXPECT_TRUE(eventually([&] { return readFile(script + u".out"_s).has_value(); }));
    qunsetenv("OURS");
    EXPECT_EQ(readFile(script + u".out"_s), "<given><><--x><a b;$(id)><\xff\n><>");
}

} // namespace
} // namespace ravelo
