// The program table's files.

#include "app/mbemain.h"
#include "base/debugline.h"
#include "base/wholefile.h"
#include "journal/journal.h"
#include "program/aline.h"
#include "program/livetable.h"
#include "program/programfile.h"

#include <QCompleter>
#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>
#include <QTextStream>

namespace {

// With the file's name between them, three items of a debug line.
const QString cannotOpen = QStringLiteral("Can not open [");
const QString bracket = QStringLiteral("]");

QString programFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation)
        + QStringLiteral("/NelvoProgram");
}

// The names of a folder come when it has been read, with a dialog that is gone by then, too: their list would
// take the operator's next click, whatever it is meant for.
void keepListToItsDialog(const QFileDialog& dialog)
{
    QCompleter* completer = dialog.findChild<QCompleter*>();
    QObject::connect(&dialog, &QDialog::finished, completer, [completer] { completer->setWidget(nullptr); });
}

QFileDialog* newDialog(const QString& name, QFileDialog::AcceptMode mode)
{
    auto* dialog = new QFileDialog(nullptr, QString(), programFolder(), QStringLiteral("*.dat"));
    dialog->setObjectName(name);
    dialog->setAcceptMode(mode);
    // The system's own would open in the first folder again, would not come to the front when it is asked for
    // twice, and speaks the system's language.
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    // A dialog left open must not keep the program running once its window is closed.
    dialog->setAttribute(Qt::WA_QuitOnClose, false);
    keepListToItsDialog(*dialog);
    return dialog;
}

// A dialog that is open already comes to the front. The folder is the one in which the operator left it.
void showOrRaise(QFileDialog& dialog)
{
    dialog.show();
    dialog.raise();
    dialog.activateWindow();
}

} // namespace

void MBEMain::setupProgramDialogs()
{
    QDir().mkpath(programFolder()); // a dialog cannot enter it before
    loadDialog = newDialog(QStringLiteral("loadDialog"), QFileDialog::AcceptOpen);
    saveDialog = newDialog(QStringLiteral("saveDialog"), QFileDialog::AcceptSave);
    // Without it a name typed without ".dat" would not be offered for loading again.
    saveDialog->setDefaultSuffix(QStringLiteral("dat"));
    connect(loadDialog, SIGNAL(fileSelected(QString)), this, SLOT(APLoadProg(QString)), Qt::UniqueConnection);
    connect(saveDialog, SIGNAL(fileSelected(QString)), this, SLOT(APSaveProg(QString)), Qt::UniqueConnection);
}

void MBEMain::APLoad()
{
    showOrRaise(*loadDialog);
}

void MBEMain::APSave()
{
    showOrRaise(*saveDialog);
}

void MBEMain::APLoadProg(QString fname)
{
    const std::optional<QVector<ProgramStep>> steps = ProgramFile::load(fname, progLines.size());
    if (!steps) {
        journal->write("load-refused", {{"file", fname}});
        NELVO_DEBUG("program") << cannotOpen << fname << bracket;
        return;
    }

    journal->write("load", {{"file", fname}, {"rows", QString::number(steps->size())}});
    const HeldUpdates held(*SA01);
    // Rows the file does not fill are cleared. Clearing them all first would show every widget twice.
    for (int k = 0; k < progLines.size(); ++k) {
        progLines[k]->setContents(k < steps->size() ? steps->at(k) : ProgramStep());
    }
}

void MBEMain::APSaveProg(QString fname)
{
    QByteArray text;
    QTextStream stream(&text);
    ProgramFile::write(stream, tableContents());
    stream.flush();
    if (replaceFile(fname, text)) {
        journal->write("save", {{"file", fname}});
    } else {
        journal->write("save-failed", {{"file", fname}});
        NELVO_DEBUG("program") << cannotOpen << fname << bracket;
    }
}
