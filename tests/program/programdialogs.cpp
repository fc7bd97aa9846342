#include "program/programwindow.h"

#include "support/testmain.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QStandardPaths>
#include <QTimer>

namespace {

QString folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation)
        + QStringLiteral("/NelvoProgram");
}

int lineCount(const QString& fname)
{
    QFile file(fname);
    return file.open(QIODevice::ReadOnly) ? file.readAll().count('\n') : -1;
}

} // namespace

class TestProgramDialogs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { shared.reset(); }
    void init() { table().button("ProgClear")->click(); }

    void dialogsAreReadyAndHidden();
    void buttonsShowTheDialogsInTheirFolder();
    void dialogsDriveSaveAndLoad();
    void theOperatorsFolderStays();
    void aPressWhileADialogIsOpenRaisesIt();
    void aNameWithoutEndingIsSavedWhereItIsFoundAgain();
    void anOpenDialogDoesNotOutliveTheWindow();

private:
    ProgramWindow& table() { return *shared; }
    void choose(const char* dialogName, const QString& fname);
    std::unique_ptr<ProgramWindow> shared;
};

void TestProgramDialogs::initTestCase()
{
    shared = std::make_unique<ProgramWindow>();
}

void TestProgramDialogs::choose(const char* dialogName, const QString& fname)
{
    QFileDialog* dialog = table().dialog(dialogName);
    auto* nameEdit = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    nameEdit->setText(fname);
    QTest::keyClick(nameEdit, Qt::Key_Return);
    QTRY_VERIFY(!dialog->isVisible());
}

void TestProgramDialogs::dialogsAreReadyAndHidden()
{
    QFileDialog* load = table().dialog("loadDialog");
    QFileDialog* save = table().dialog("saveDialog");
    QCOMPARE(load->acceptMode(), QFileDialog::AcceptOpen);
    QCOMPARE(save->acceptMode(), QFileDialog::AcceptSave);
    for (QFileDialog* dialog : {load, save}) {
        QCOMPARE(dialog->nameFilters(), QStringList(QStringLiteral("*.dat")));
        QVERIFY(dialog->parent() == nullptr);
        QVERIFY(!dialog->isModal());
        QVERIFY(!dialog->isVisible());
    }
}

void TestProgramDialogs::buttonsShowTheDialogsInTheirFolder()
{
    QVERIFY(QDir::isAbsolutePath(folder()));
    QVERIFY(!QDir(folder()).exists()); // a start alone leaves the desktop as it is
    table().button("ProgSave")->click();
    table().button("ProgLoad")->click();
    for (const char* name : {"saveDialog", "loadDialog"}) {
        QFileDialog* dialog = table().dialog(name);
        QVERIFY(dialog->isVisible());
        QVERIFY(!dialog->isModal());
        QCOMPARE(dialog->directory().absolutePath(), folder());
        dialog->close();
    }
    QVERIFY(QDir(folder()).exists());
    table().button("ProgLoad")->click();
    QVERIFY(table().dialog("loadDialog")->isVisible()); // outlives its use
    table().dialog("loadDialog")->close();
}

void TestProgramDialogs::dialogsDriveSaveAndLoad()
{
    table().enter(0, QStringLiteral("33"), QStringLiteral("G"), QStringLiteral("2"));
    const QString fname = folder() + QStringLiteral("/picked.dat");
    table().button("ProgSave")->click();
    choose("saveDialog", fname);
    QCOMPARE(lineCount(fname), 200);
    table().button("ProgClear")->click();
    table().button("ProgLoad")->click();
    choose("loadDialog", fname);
    QCOMPARE(table().time(0)->text(), QStringLiteral("33"));
    QCOMPARE(table().group(0)->text(), QStringLiteral("G"));
}

void TestProgramDialogs::theOperatorsFolderStays()
{
    QVERIFY(QDir(folder()).mkpath(QStringLiteral("November")));
    for (const char* name : {"saveDialog", "loadDialog"}) {
        const char* button = qstrcmp(name, "saveDialog") == 0 ? "ProgSave" : "ProgLoad";
        QFileDialog* dialog = table().dialog(name);
        table().button(button)->click();
        dialog->setDirectory(folder() + QStringLiteral("/November"));
        dialog->close();
        table().button(button)->click();
        QCOMPARE(dialog->directory().dirName(), QStringLiteral("November"));
        dialog->close();
        dialog->setDirectory(folder());
    }
}

void TestProgramDialogs::aPressWhileADialogIsOpenRaisesIt()
{
    table().button("ProgLoad")->click();
    QFileDialog* dialog = table().dialog("loadDialog");
    QTRY_VERIFY(dialog->isActiveWindow());
    QWidget other;
    other.show();
    other.activateWindow();
    QTRY_VERIFY(other.isActiveWindow());
    table().button("ProgLoad")->click();
    QTRY_VERIFY(dialog->isActiveWindow());
    dialog->close();
}

void TestProgramDialogs::aNameWithoutEndingIsSavedWhereItIsFoundAgain()
{
    table().button("ProgSave")->click();
    choose("saveDialog", folder() + QStringLiteral("/plain"));
    QCOMPARE(lineCount(folder() + QStringLiteral("/plain.dat")), 200);
}

void TestProgramDialogs::anOpenDialogDoesNotOutliveTheWindow()
{
    table().window().show();
    table().button("ProgLoad")->click();
    QVERIFY(table().dialog("loadDialog")->isVisible());
    QTimer patience;
    patience.setSingleShot(true);
    connect(&patience, &QTimer::timeout, qApp, [] { QCoreApplication::exit(1); });
    patience.start(10000);
    QTimer::singleShot(0, &table().window(), &QWidget::close);
    QCOMPARE(QCoreApplication::exec(), 0);
    table().dialog("loadDialog")->close();
}

NELVO_TEST_MAIN(TestProgramDialogs)
#include "programdialogs.moc"
