#include "app/adapteraddress.h"
#include "app/checkpc.h"
#include "app/commandline.h"
#include "app/language.h"
#include "app/mbemain.h"
#include "app/pcguard.h"
#include "app/windowfont.h"
#include "app/windowscale.h"
#include "base/console.h"
#include "journal/journal.h"

#include <QApplication>
#include <QMessageBox>
#include <QTranslator>

namespace {

struct Answer
{
    QString text;
    int status;
};

Answer answerTo(Task task, const QStringList& arguments)
{
    if (task == Task::CheckPc) {
        const PcCheck check = checkPc(checkedSeconds(arguments));
        return {check.report(), check.isPassed() ? 0 : 1};
    }
    return {task == Task::Help ? helpText() : versionText(), 0};
}

/// Answers a task without the station, where it was asked for or, after a double click, in a box.
int answerWithoutStation(int argc, char* argv[], Task task, const QStringList& arguments)
{
    Answer answer;
    {
        // No display is needed for it.
        QCoreApplication application(argc, argv);
        QTranslator translator;
        speak(chooseLanguage(arguments), translator);
        answer = answerTo(task, arguments);
        if (writeToConsole(answer.text)) {
            return answer.status;
        }
    }
    QApplication application(argc, argv);
    QMessageBox::information(
        nullptr, QStringLiteral("Nelvo"), QStringLiteral("<pre>%1</pre>").arg(answer.text.toHtmlEscaped()));
    return answer.status;
}

/// Nothing has been sent yet, and nothing will be: the journal and a box say why. It is no run that ends: how
/// the last one did is for the next start to tell.
int endForMistake(const QString& mistake)
{
    Journal().write("no-start", {{"reason", mistake}});
    QMessageBox::critical(nullptr, QStringLiteral("Nelvo"), mistake);
    return 1;
}

PcGuard::Work workOf(const MBEMain& window)
{
    return window.isPlaying() ? PcGuard::Work::Program
        : window.isRamping()  ? PcGuard::Work::Ramp
                              : PcGuard::Work::None;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication::setStyle(QStringLiteral("Fusion"));

    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    const Task task = taskOf(arguments);
    if (task != Task::Station) {
        return answerWithoutStation(argc, argv, task, arguments);
    }

    const Language& language = chooseLanguage(arguments);
    setUpScale(language);
    QApplication application(argc, argv);
    QTranslator translator;
    speak(language, translator);
    QTranslator dialogTranslator;
    speakInDialogs(language, dialogTranslator);
    useFontFor(language);
    const QString mistake = adapterMistake();
    if (!mistake.isEmpty()) {
        return endForMistake(mistake);
    }

    // Never deleted: ending the program sends nothing to the instruments, and the destructors of the window
    // and of its link must not change that.
    auto* window = new MBEMain;
    PcGuard guard(*window, [window] { return workOf(*window); });
    QObject::connect(&guard, &PcGuard::asked, window, &MBEMain::journalPc);
    QObject::connect(&guard, &PcGuard::sessionEnds, window, &MBEMain::journalSessionEnd);
    guard.start();
    fitIntoFreeArea(*window);
    window->show();
    return QApplication::exec();
}
