#include "platform/AtomicFile.h"
#include "support/Cases.h"
#include "support/Files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using vlt::platform::Access;
using vlt::platform::FileAside;
using vlt::platform::writeWhole;

namespace {

mode_t modeOf(const QString &path)
{
    struct stat state = {};
    return ::lstat(QFile::encodeName(path).constData(), &state) == 0 ? state.st_mode & 07777 : 0;
}

QStringList namesIn(const QString &directory)
{
    return QDir(directory).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                     QDir::NoDotAndDotDot);
}

} // namespace

class tst_AtomicFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ::umask(022); }

    void writesWithTheModeThatIsAskedFor_data()
    {
        // oldMode: 0 for no file before
        const Cases<Access, int, int> row({"access", "oldMode", "expectedMode"});
        row("user only, new", Access::UserOnly, 0, 0600);
        row("user only, over a public file", Access::UserOnly, 0666, 0600);
        row("shared, new", Access::Shared, 0, 0644);
        row("shared, over a private file", Access::Shared, 0640, 0640);
    }

    void writesWithTheModeThatIsAskedFor()
    {
        QFETCH(Access, access);
        QFETCH(int, oldMode);
        const QTemporaryDir dir;
        const QString path = dir.filePath(QString(251, u'\u00E9').left(120) + u".lay"_s);
        if (oldMode != 0) {
            writeFile(path, "a longer text that was there before");
            ::chmod(QFile::encodeName(path).constData(), static_cast<mode_t>(oldMode));
        }

        QVERIFY(writeWhole(path, "new", access).ok());

        QCOMPARE(readFile(path), QByteArray("new"));
        QTEST(static_cast<int>(modeOf(path)), "expectedMode");
        QCOMPARE(namesIn(dir.path()).size(), 1);
    }

    void replacesASymbolicLink()
    {
        for (const QString &linkTarget : {u"victim"_s, u"."_s, u"gone"_s}) {
            const QTemporaryDir dir;
            writeFile(dir.filePath(u"victim"_s), "old");
            const QString path = dir.filePath(u"layer"_s);
            QVERIFY(QFile::link(linkTarget, path));

            QVERIFY(writeWhole(path, "new", Access::UserOnly).ok());

            QVERIFY(!QFileInfo(path).isSymbolicLink());
            QCOMPARE(readFile(path), QByteArray("new"));
            QCOMPARE(readFile(dir.filePath(u"victim"_s)), QByteArray("old"));
            QCOMPARE(namesIn(dir.path()), (QStringList{u"layer"_s, u"victim"_s}));
        }
    }

    void followsTheLinksOfAUser()
    {
        for (const QString &name : {u"published/layer"_s, u"new"_s}) {
            const QTemporaryDir dir;
            QVERIFY(QDir(dir.path()).mkdir(u"published"_s));
            writeFile(dir.filePath(u"published/layer"_s), "old");
            QVERIFY(QFile::link(u"second"_s, dir.filePath(u"layer"_s)));
            QVERIFY(QFile::link(name, dir.filePath(u"second"_s)));

            QVERIFY(writeWhole(dir.filePath(u"layer"_s), "new", Access::Shared).ok());

            QVERIFY(QFileInfo(dir.filePath(u"layer"_s)).isSymbolicLink());
            QVERIFY(QFileInfo(dir.filePath(u"second"_s)).isSymbolicLink());
            QCOMPARE(readFile(dir.filePath(name)), QByteArray("new"));
            QCOMPARE(namesIn(dir.filePath(u"published"_s)), QStringList{u"layer"_s});
        }
    }

    /// A file that another writer makes under a name of its own.
    void replacesAFileByOneAside()
    {
        const QTemporaryDir dir;
        const QString target = dir.filePath(u"values.gpkg"_s);
        const QString path = dir.filePath(u"link.csv"_s);
        writeFile(target, "old");
        ::chmod(QFile::encodeName(target).constData(), 0640);
        QVERIFY(QFile::link(u"values.gpkg"_s, path));
        const QStringList names = namesIn(dir.path());

        for (const bool isReplaced : {false, true}) {
            const auto aside = FileAside::create(path);
            QVERIFY(aside.ok());
            QVERIFY(aside.value()->name().endsWith(u".csv"_s));
            writeFile(aside.value()->name(), "new");
            QVERIFY(!isReplaced || aside.value()->replace().ok());
            QCOMPARE(readFile(path), QByteArray(isReplaced ? "new" : "old"));
        }
        QCOMPARE(modeOf(target), mode_t(0640));
        QVERIFY(QFileInfo(path).isSymbolicLink());
        QCOMPARE(namesIn(dir.path()), names);
        QVERIFY(!FileAside::create(dir.filePath(u"gone/layer"_s)).ok());
    }

    void leavesTheOldFileOnAFullDevice()
    {
        const QTemporaryDir dir;
        const QString path = dir.filePath(u"layer"_s);
        writeFile(path, "old");
        // Simulates a full disk by a limit for the size of this process's files.
        rlimit limit = {};
        ::getrlimit(RLIMIT_FSIZE, &limit);
        const rlimit full = {4096, limit.rlim_max};
        ::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &full);
        const auto written = writeWhole(path, QByteArray(100000, 'x'), Access::Shared);
        ::setrlimit(RLIMIT_FSIZE, &limit);

        QVERIFY(!written.ok());
        QVERIFY(!written.error().detail.isEmpty());
        QCOMPARE(written.error().path, path);
        QCOMPARE(readFile(path), QByteArray("old"));
        QCOMPARE(namesIn(dir.path()), QStringList{u"layer"_s});
    }

    void leavesAWriteProtectedFile()
    {
        const QTemporaryDir dir;
        const QString path = dir.filePath(u"layer"_s);
        writeFile(path, "old");
        ::chmod(QFile::encodeName(path).constData(), 0444);
        ::chmod(QFile::encodeName(dir.path()).constData(), 0777);
        // Root may write everywhere, so the test changes to another user.
        constexpr uid_t nobody = 65534;
        const bool switched = ::geteuid() == 0 && ::setresuid(nobody, nobody, 0) == 0;
        const auto written = writeWhole(path, "new", Access::Shared);
        if (switched && ::setresuid(0, 0, 0) != 0)
            qFatal("root's rights did not come back");
        ::prctl(PR_SET_DUMPABLE, 1); // the change of user resets it; leak checkers need it

        QVERIFY(!written.ok());
        QVERIFY(written.error().detail.contains(u"write-protected"_s));
        QCOMPARE(readFile(path), QByteArray("old"));
    }

    void refusesWhatIsNoPlaceForAFile()
    {
        const QTemporaryDir dir;
        const QString directory = dir.filePath(u"directory"_s);
        const QString pipe = dir.filePath(u"pipe"_s);
        const QString toPipe = dir.filePath(u"toPipe"_s);
        const QString loop = dir.filePath(u"loop"_s);
        const QString output = dir.filePath(u"output"_s);
        QVERIFY(QDir().mkdir(directory));
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(QFile::link(u"pipe"_s, toPipe));
        QVERIFY(QFile::link(u"loop"_s, loop));
        // Like /dev/stdout, this link leads to an open file of the process, here a regular one.
        QFile open(dir.filePath(u"open"_s));
        QVERIFY(open.open(QIODevice::WriteOnly));
        QVERIFY(QFile::link(u"/proc/self/fd/%1"_s.arg(open.handle()), output));
        const QStringList names = namesIn(dir.path());

        // No user may write in /proc, not even root.
        for (const QString &path : {QString(), directory, pipe, toPipe, loop, output,
                                    dir.filePath(u"gone/layer"_s), u"/proc/layer"_s}) {
            const vlt::Result<vlt::Done> written = writeWhole(path, "new", Access::Shared);

            QVERIFY2(!written.ok() && !written.error().detail.isEmpty(), qPrintable(path));
            QCOMPARE(namesIn(dir.path()), names);
            QVERIFY(namesIn(directory).isEmpty());
        }
        QVERIFY(QFileInfo(output).isSymbolicLink() && readFile(open.fileName()).isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_AtomicFile)
#include "tst_AtomicFile.moc"
