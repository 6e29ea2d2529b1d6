#include "platform/AtomicFile.h"

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
using vlt::platform::writeWhole;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

void put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

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

/// A device that is full after `bytes`: files of this process may not grow beyond.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        ::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &m_before); }
    Q_DISABLE_COPY_MOVE(FileSizeLimit)

private:
    rlimit m_before = {};
};

/// Root may write everywhere; while this lives the process is somebody else.
class OrdinaryUser
{
public:
    OrdinaryUser()
    {
        constexpr uid_t nobody = 65534;
        m_switched = ::geteuid() == 0 && ::setresuid(nobody, nobody, 0) == 0;
    }
    ~OrdinaryUser()
    {
        if (m_switched && ::setresuid(0, 0, 0) != 0)
            qFatal("root's rights did not come back");
        ::prctl(PR_SET_DUMPABLE, 1); // lost with the switch; leak checkers need it
    }
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

private:
    bool m_switched = false;
};

} // namespace

class TestAtomicFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ::umask(022); }

    void writesWithTheModeThatIsAskedFor_data()
    {
        QTest::addColumn<Access>("access");
        QTest::addColumn<int>("oldMode"); // 0: no file before
        QTest::addColumn<int>("expectedMode");

        QTest::newRow("user only, new") << Access::UserOnly << 0 << 0600;
        QTest::newRow("user only, over a public file") << Access::UserOnly << 0666 << 0600;
        QTest::newRow("shared, new") << Access::Shared << 0 << 0644;
        QTest::newRow("shared, over a private file") << Access::Shared << 0640 << 0640;
        QTest::newRow("shared, over an executable") << Access::Shared << 0775 << 0775;
    }

    void writesWithTheModeThatIsAskedFor()
    {
        QFETCH(Access, access);
        QFETCH(int, oldMode);
        const QTemporaryDir dir;
        const QString path = dir.filePath(QString(251, u'\u00E9').left(120) + u".lay"_s);
        if (oldMode != 0) {
            put(path, "a longer text that was there before");
            ::chmod(QFile::encodeName(path).constData(), static_cast<mode_t>(oldMode));
        }

        QVERIFY(writeWhole(path, "new", access).ok());

        QCOMPARE(contentOf(path), QByteArray("new"));
        QTEST(static_cast<int>(modeOf(path)), "expectedMode");
        QCOMPARE(namesIn(dir.path()).size(), 1);
    }

    void replacesASymbolicLink_data()
    {
        QTest::addColumn<QString>("linkTarget");
        QTest::newRow("to a file") << u"victim"_s;
        QTest::newRow("to a directory") << u"."_s;
        QTest::newRow("to nothing") << u"gone"_s;
    }

    void replacesASymbolicLink()
    {
        QFETCH(QString, linkTarget);
        const QTemporaryDir dir;
        put(dir.filePath(u"victim"_s), "old");
        const QString path = dir.filePath(u"layer"_s);
        QVERIFY(QFile::link(linkTarget, path));

        QVERIFY(writeWhole(path, "new", Access::UserOnly).ok());

        QVERIFY(!QFileInfo(path).isSymbolicLink());
        QCOMPARE(contentOf(path), QByteArray("new"));
        QCOMPARE(contentOf(dir.filePath(u"victim"_s)), QByteArray("old"));
        QCOMPARE(namesIn(dir.path()), (QStringList{u"layer"_s, u"victim"_s}));
    }

    void leavesTheOldFileOnAFullDevice()
    {
        const QTemporaryDir dir;
        const QString path = dir.filePath(u"layer"_s);
        put(path, "old");
        vlt::Result<vlt::Done> written = vlt::Done{};
        {
            const FileSizeLimit full(4096);
            written = writeWhole(path, QByteArray(100000, 'x'), Access::Shared);
        }

        QVERIFY(!written.ok());
        QVERIFY(!written.error().text.isEmpty());
        QCOMPARE(written.error().path, path);
        QCOMPARE(contentOf(path), QByteArray("old"));
        QCOMPARE(namesIn(dir.path()), QStringList{u"layer"_s});
    }

    void leavesAWriteProtectedFile()
    {
        const QTemporaryDir dir;
        const QString path = dir.filePath(u"layer"_s);
        put(path, "old");
        ::chmod(QFile::encodeName(path).constData(), 0444);
        ::chmod(QFile::encodeName(dir.path()).constData(), 0777);
        vlt::Result<vlt::Done> written = vlt::Done{};
        {
            const OrdinaryUser user;
            written = writeWhole(path, "new", Access::Shared);
        }

        QVERIFY(!written.ok());
        QVERIFY2(written.error().text.contains(u"write-protected"_s),
                 qPrintable(written.error().text));
        QCOMPARE(contentOf(path), QByteArray("old"));
        QCOMPARE(namesIn(dir.path()), QStringList{u"layer"_s});
    }

    void refusesWhatIsNoPlaceForAFile_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("nameless") << QString();
        QTest::newRow("directory") << u"directory"_s;
        QTest::newRow("pipe") << u"pipe"_s;
        QTest::newRow("device") << u"/dev/full"_s;
        QTest::newRow("below a missing directory") << u"gone/layer"_s;
        QTest::newRow("in a directory that nobody may write, root included") << u"/proc/layer"_s;
    }

    void refusesWhatIsNoPlaceForAFile()
    {
        QFETCH(QString, path);
        const QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkdir(u"directory"_s));
        QCOMPARE(::mkfifo(QFile::encodeName(dir.filePath(u"pipe"_s)).constData(), 0600), 0);
        if (!path.isEmpty())
            path = QDir(dir.path()).absoluteFilePath(path);

        const vlt::Result<vlt::Done> written = writeWhole(path, "new", Access::Shared);

        QVERIFY(!written.ok());
        QVERIFY(!written.error().text.isEmpty());
        QCOMPARE(namesIn(dir.path()), (QStringList{u"directory"_s, u"pipe"_s}));
        QVERIFY(namesIn(dir.filePath(u"directory"_s)).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestAtomicFile)
#include "tst_AtomicFile.moc"
