// The font of Japanese texts on a Windows of another language.

#include "app/windowfont.h"

#include "support/testmain.h"

using namespace TestText;

class WindowFontTest : public QObject
{
    Q_OBJECT

private slots:
    void theBestOneThatIsThereIsTaken()
    {
        const QStringList all{"Arial"_s, "MS UI Gothic"_s, "Meiryo UI"_s, "Segoe UI"_s, "Yu Gothic UI"_s};
        QCOMPARE(japaneseFamily(all), "Yu Gothic UI"_s);
        QCOMPARE(japaneseFamily(all.mid(0, 4)), "Meiryo UI"_s);
        QCOMPARE(japaneseFamily(all.mid(0, 2)), "MS UI Gothic"_s);
        QCOMPARE(japaneseFamily(all.mid(0, 1)), QString());
        QCOMPARE(japaneseFamily({}), QString());
    }
};

NELVO_TEST_MAIN(WindowFontTest)
#include "windowfont.moc"
