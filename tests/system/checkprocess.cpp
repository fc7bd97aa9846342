// The program growthcheck itself: what it writes into a pipe, and on Windows what it does on a console and
// with a program that is dropped on it.

#include "support/files.h"
#include "support/testmain.h"
#include "support/testtext.h"
#include "system/process.h"

#include <QDir>
#include <QFile>

#ifdef Q_OS_WIN
#include <windows.h>

#include <tlhelp32.h>
#endif

using namespace TestText;

namespace {

constexpr int patienceMs = 20000;

const QByteArray program = "0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t0\t10\t---NoGroup---\t1\n";

#ifdef Q_OS_WIN

QString textOnConsole()
{
    const HANDLE console = CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE,
        FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    QString text(4000, u' ');
    DWORD length = 0;
    ReadConsoleOutputCharacterW(
        console, reinterpret_cast<wchar_t*>(text.data()), static_cast<DWORD>(text.size()), {0, 0}, &length);
    CloseHandle(console);
    return text.left(static_cast<int>(length)).remove(u' ');
}

// As a desktop does.
void startOnItsOwnConsole(QProcess& process, const QString& started, const QStringList& words)
{
    process.setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments* arguments) {
        arguments->flags &= ~static_cast<DWORD>(CREATE_NO_WINDOW);
        arguments->flags |= CREATE_NEW_CONSOLE;
        arguments->startupInfo->dwFlags &= ~static_cast<DWORD>(STARTF_USESTDHANDLES);
    });
    process.setWorkingDirectory(QCoreApplication::applicationDirPath()); // which nobody removes
    process.start(started, words);
}

// Else it would stay on the screen. False when there was none.
bool endExplorerOf(DWORD parent)
{
    bool isEnded = false;
    const HANDLE list = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32W entry = {};
    entry.dwSize = sizeof(entry);
    for (BOOL isOne = Process32FirstW(list, &entry); isOne != FALSE; isOne = Process32NextW(list, &entry)) {
        if (entry.th32ParentProcessID == parent
            && QString::fromWCharArray(entry.szExeFile) == "explorer.exe"_s) {
            const HANDLE process = OpenProcess(PROCESS_TERMINATE, FALSE, entry.th32ProcessID);
            isEnded = TerminateProcess(process, 0) != 0;
            CloseHandle(process);
        }
    }
    CloseHandle(list);
    return isEnded;
}

// What this program is on a console of its own: it has growthcheck write there, and reads it.
int noteWhatAConsoleShows(const QString& file)
{
    QProcess::execute(growthcheckProgram(), {"--language"_s, "ja"_s, "--help"_s});
    putFile(file, textOnConsole().toUtf8());
    return 0;
}

#endif

} // namespace

class CheckProcessTest : public QObject
{
    Q_OBJECT

    static QByteArray outputOf(const QStringList& words)
    {
        QProcess process;
        process.start(growthcheckProgram(), words);
        process.waitForFinished(patienceMs);
        return process.readAllStandardOutput().replace("\r\n", "\n");
    }

private slots:
    void aPipeGetsUtf8()
    {
        putFile("closed.dat"_s, program);
        QCOMPARE(outputOf({"--version"_s}).left(12), QByteArray("growthcheck "));
        const QByteArray found = outputOf({"--language"_s, "ja"_s, "closed.dat"_s});
        QVERIFY2(QString::fromUtf8(found).contains("ステップ"_s), found);
        QVERIFY(!QFile::exists("closed.html"_s));
    }

    void aConsoleGetsLetters()
    {
#ifdef Q_OS_WIN
        const QString file = QDir::current().absoluteFilePath("console"_s);
        QProcess process;
        startOnItsOwnConsole(process, QCoreApplication::applicationFilePath(), {"--console"_s, file});
        QVERIFY(process.waitForFinished(patienceMs));
        const QString shown = QString::fromUtf8(fileText(file));
        QVERIFY2(shown.contains("チャネル"_s), qPrintable(shown));
#else
        QSKIP("a console of Windows");
#endif
    }

    void aDroppedProgramGetsItsPage()
    {
#ifdef Q_OS_WIN
        QVERIFY(QDir().mkpath("成長 1"_s));
        const QString dropped = QDir::toNativeSeparators(QDir("成長 1"_s).absoluteFilePath("a, b.dat"_s));
        putFile(dropped, program);
        QProcess process;
        startOnItsOwnConsole(process, growthcheckProgram(), {dropped});
        const auto id = static_cast<DWORD>(process.processId());
        QVERIFY(process.waitForFinished(patienceMs));
        QVERIFY(fileText("成長 1/a, b.html"_s).contains("class=\"lanes\""));
        QVERIFY(endExplorerOf(id));
#else
        QSKIP("a desktop that drops files on programs");
#endif
    }

    void whatCannotBeReadIsLeftToBeRead()
    {
#ifdef Q_OS_WIN
        QProcess process;
        startOnItsOwnConsole(process, growthcheckProgram(), {"absent.dat"_s});
        QVERIFY(!process.waitForFinished(2000));
        process.kill();
        QVERIFY(process.waitForFinished(patienceMs));
#else
        QSKIP("a desktop that drops files on programs");
#endif
    }
};

int main(int argc, char* argv[])
{
#ifdef Q_OS_WIN
    {
        const QCoreApplication application(argc, argv);
        const QStringList arguments = QCoreApplication::arguments();
        if (arguments.value(1) == "--console"_s) {
            return noteWhatAConsoleShows(arguments.value(2));
        }
    }
#endif
    return runIsolated(argc, argv, [&] {
        CheckProcessTest test;
        return QTest::qExec(&test, argc, argv);
    });
}
#include "checkprocess.moc"
