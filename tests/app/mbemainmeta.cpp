// The window's meta-object: other programs and tests reach the slots by their places in it.

#include "app/mbemain.h"
#include "support/testmain.h"

#include <QMetaMethod>

namespace {

struct Entry
{
    const char* signature;
    const char* parameters;
};

// The place in the list is the place in the meta-object.
const Entry entries[] = {
    {"newT(int,qlonglong,double)", "ch,t,T"}, // qint64 in its normalised form
    {"NewNextShutter()", ""},
    {"NewCurrentShutter()", ""},
    {"ChangeShutter()", ""},
    {"ActionShutter()", ""},
    {"AllClose()", ""},
    {"ActivateCell()", ""},
    {"WatchTMP()", ""},
    {"RunStopTControll()", ""},
    {"newData(int,QByteArray)", "bytes,data"},
    {"APStart()", ""},
    {"APPause()", ""},
    {"APOneTick()", ""},
    {"APCopy()", ""},
    {"APCut()", ""},
    {"APPasteUp()", ""},
    {"APPasteDown()", ""},
    {"APUndo()", ""},
    {"APLoad()", ""},
    {"APSave()", ""},
    {"APClear()", ""},
    {"APCheck()", ""},
    {"APLoadProg(QString)", "fname"},
    {"APSaveProg(QString)", "fname"},
};
constexpr int entryCount = sizeof entries / sizeof entries[0];

} // namespace

class MBEMainMetaTest : public QObject
{
    Q_OBJECT

    const QMetaObject& meta = MBEMain::staticMetaObject;

private slots:
    void isAMainWindowOfItsOwnName()
    {
        QCOMPARE(meta.className(), "MBEMain");
        QCOMPARE(meta.superClass(), &QMainWindow::staticMetaObject);
    }

    void holdsTheListedMethodsOnly()
    {
        QCOMPARE(meta.methodCount() - meta.methodOffset(), entryCount);
        QCOMPARE(meta.propertyCount(), meta.propertyOffset());
        QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
        QCOMPARE(meta.classInfoCount(), meta.classInfoOffset());
        QCOMPARE(meta.constructorCount(), 0);
    }

    void method_data()
    {
        QTest::addColumn<int>("index");
        for (int index = 0; index < entryCount; ++index) {
            QTest::newRow(entries[index].signature) << index;
        }
    }

    void method()
    {
        QFETCH(int, index);
        const QMetaMethod method = meta.method(meta.methodOffset() + index);
        QCOMPARE(method.methodSignature(), QByteArray(entries[index].signature));
        QCOMPARE(method.parameterNames().join(','), QByteArray(entries[index].parameters));
        QCOMPARE(method.typeName(), "void");
        QCOMPARE(method.methodType(), index == 0 ? QMetaMethod::Signal : QMetaMethod::Slot);
    }
};

NELVO_TEST_MAIN(MBEMainMetaTest)
#include "mbemainmeta.moc"
