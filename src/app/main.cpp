#include "app/language.h"
#include "app/mbemain.h"

#include <QApplication>
#include <QTranslator>

int main(int argc, char* argv[])
{
    QApplication::setStyle(QStringLiteral("Fusion"));

    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }

    QApplication application(argc, argv);
    QTranslator translator;
    const Language& language = chooseLanguage(arguments);
    speak(language, translator);
    QTranslator dialogTranslator;
    speakInDialogs(language, dialogTranslator);

    // Never deleted: ending the program sends nothing to the instruments, and the destructors of the window
    // and of its link must not change that.
    auto* window = new MBEMain;
    window->show();
    return QApplication::exec();
}
