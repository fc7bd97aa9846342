// The dialogs that choose a program's file.

#include "support/files.h"
#include "support/stationtest.h"
#include "support/testmain.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QKeyEvent>
#include <QStandardPaths>
#include <QTimer>

using namespace TestText;

namespace {

QString folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation) + "/NelvoProgram"_s;
}

QFileDialog* dialogNamed(const char* name)
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String(name)) {
            return qobject_cast<QFileDialog*>(widget);
        }
    }
    return nullptr;
}

} // namespace

class ProgramDialogsTest : public SharedStationTest
{
    Q_OBJECT

    void choose(const char* dialogName, const QString& fname)
    {
        QFileDialog* dialog = dialogNamed(dialogName);
        auto* nameEdit = dialog->findChild<QLineEdit*>("fileNameEdit"_s);
        nameEdit->setText(fname);
        QTest::keyClick(nameEdit, Qt::Key_Return);
        QTRY_VERIFY(!dialog->isVisible());
    }

private slots:
    void init() { program().click("Clear"); }

    void dialogsAreReadyAndHidden()
    {
        QFileDialog* load = dialogNamed("loadDialog");
        QFileDialog* save = dialogNamed("saveDialog");
        QCOMPARE(load->acceptMode(), QFileDialog::AcceptOpen);
        QCOMPARE(save->acceptMode(), QFileDialog::AcceptSave);
        for (QFileDialog* dialog : {load, save}) {
            QCOMPARE(dialog->nameFilters(), QStringList("*.dat"_s));
            QVERIFY(dialog->parent() == nullptr);
            QVERIFY(!dialog->isModal());
            QVERIFY(!dialog->isVisible());
        }
    }

    void buttonsShowTheDialogsInTheirFolder()
    {
        QVERIFY(QDir::isAbsolutePath(folder()));
        program().click("Save");
        program().click("Load");
        for (const char* name : {"saveDialog", "loadDialog"}) {
            QFileDialog* dialog = dialogNamed(name);
            QVERIFY(dialog->isVisible());
            QVERIFY(!dialog->isModal());
            QCOMPARE(dialog->directory().absolutePath(), folder());
            dialog->close();
        }
        QVERIFY(QDir(folder()).exists());
        program().click("Load");
        QVERIFY(dialogNamed("loadDialog")->isVisible()); // outlives its use
        dialogNamed("loadDialog")->close();
    }

    void dialogsDriveSaveAndLoad()
    {
        program().enter(0, "33"_s, "G"_s, "2"_s);
        const QString fname = QDir::currentPath() + "/picked.dat"_s;
        program().click("Save");
        choose("saveDialog", fname);
        QCOMPARE(fileText(fname).count('\n'), ProgramTab::rows);
        program().click("Clear");
        program().click("Load");
        choose("loadDialog", fname);
        QCOMPARE(program().time(0)->text(), "33"_s);
        QCOMPARE(program().group(0)->text(), "G"_s);
    }

    void theOperatorsFolderStays()
    {
        QVERIFY(QDir(folder()).mkpath("November"_s));
        for (const char* name : {"saveDialog", "loadDialog"}) {
            const char* button = qstrcmp(name, "saveDialog") == 0 ? "Save" : "Load";
            QFileDialog* dialog = dialogNamed(name);
            program().click(button);
            dialog->setDirectory(folder() + "/November"_s);
            dialog->close();
            program().click(button);
            QCOMPARE(dialog->directory().dirName(), "November"_s);
            dialog->close();
            dialog->setDirectory(folder());
        }
    }

    void aPressWhileADialogIsOpenRaisesIt()
    {
        program().click("Load");
        QFileDialog* dialog = dialogNamed("loadDialog");
        QTRY_VERIFY(dialog->isActiveWindow());
        QWidget other;
        other.show();
        other.activateWindow();
        QTRY_VERIFY(other.isActiveWindow());
        program().click("Load");
        QTRY_VERIFY(dialog->isActiveWindow());
        dialog->close();
    }

    void aNameWithoutEndingIsSavedWhereItIsFoundAgain()
    {
        program().click("Save");
        choose("saveDialog", QDir::currentPath() + "/plain"_s);
        QCOMPARE(fileText("plain.dat"_s).count('\n'), ProgramTab::rows);
    }

    // The names of a folder that was not read yet come when the dialog has gone. A list of them would take
    // the operator's next click, "All Close" or "Stop" included.
    void noListOfNamesComesAfterTheDialog()
    {
        const QString elsewhere = QDir::currentPath() + "/elsewhere"_s;
        QVERIFY(QDir().mkpath(elsewhere));
        putFile(elsewhere + "/picked.dat"_s, "\n");
        program().click("Load");
        QFileDialog* dialog = dialogNamed("loadDialog");
        QTRY_VERIFY(dialog->isActiveWindow());
        auto* nameEdit = dialog->findChild<QLineEdit*>("fileNameEdit"_s);
        nameEdit->selectAll(); // the name chosen before is still there
        // Keys go to the list of names while there is one, as the window system gives them.
        const auto focus = [nameEdit] {
            QWidget* list = QApplication::activePopupWidget();
            return list != nullptr ? list : nameEdit;
        };
        // The folder's name may have letters that the toolkit's simulated keyboard has not.
        for (const QChar character : elsewhere + "/picked.dat"_s) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
            QCoreApplication::sendEvent(focus(), &press);
        }
        QTest::keyClick(focus(), Qt::Key_Return);
        QTRY_VERIFY(!dialog->isVisible());
        QTest::qWait(1000);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
    }

    void anOpenDialogDoesNotOutliveTheWindow_data()
    {
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<QByteArray>("dialogName");
        QTest::newRow("load") << QByteArray("Load") << QByteArray("loadDialog");
        QTest::newRow("save") << QByteArray("Save") << QByteArray("saveDialog");
    }

    void anOpenDialogDoesNotOutliveTheWindow()
    {
        QFETCH(QByteArray, button);
        QFETCH(QByteArray, dialogName);
        station->window().show();
        program().click(button.constData());
        QVERIFY(dialogNamed(dialogName.constData())->isVisible());
        QTimer patience;
        patience.setSingleShot(true);
        connect(&patience, &QTimer::timeout, qApp, [] { QCoreApplication::exit(1); });
        patience.start(10000);
        QTimer::singleShot(0, &station->window(), &QWidget::close);
        QCOMPARE(QCoreApplication::exec(), 0);
        dialogNamed(dialogName.constData())->close();
    }
};

NELVO_TEST_MAIN(ProgramDialogsTest)
#include "programdialogs.moc"
