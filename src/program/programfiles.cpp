// The program table's files.

#include "app/debugline.h"
#include "app/mbemain.h"
#include "program/aline.h"
#include "program/heldupdates.h"
#include "program/programfile.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QSaveFile>
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

QFileDialog* newDialog(const QString& name, QFileDialog::AcceptMode mode)
{
    auto* dialog = new QFileDialog(nullptr, QString(), programFolder(), QStringLiteral("*.dat"));
    dialog->setObjectName(name);
    dialog->setAcceptMode(mode);
    return dialog;
}

// The folder is made when it is first needed; a dialog cannot enter it before.
void showInFolder(QFileDialog& dialog)
{
    QDir().mkpath(programFolder());
    dialog.setDirectory(programFolder());
    dialog.show();
}

bool save(const QString& fname, const QVector<ProgramStep>& steps)
{
    // The old program stays until the new one is whole.
    QSaveFile file(fname);
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        return false;
    }
    QTextStream stream(&file);
    ProgramFile::write(stream, steps);
    stream.flush();
    // Asked here, because commit() does not look at how its own last flush went: on a full disk it would
    // replace the file by the part that fitted.
    if (stream.status() != QTextStream::Ok || !file.flush()) {
        file.cancelWriting();
    }
    return file.commit();
}

} // namespace

void MBEMain::setupProgramDialogs()
{
    loadDialog = newDialog(QStringLiteral("loadDialog"), QFileDialog::AcceptOpen);
    saveDialog = newDialog(QStringLiteral("saveDialog"), QFileDialog::AcceptSave);
    connect(loadDialog, SIGNAL(fileSelected(QString)), this, SLOT(APLoadProg(QString)), Qt::UniqueConnection);
    connect(saveDialog, SIGNAL(fileSelected(QString)), this, SLOT(APSaveProg(QString)), Qt::UniqueConnection);
}

void MBEMain::APLoad()
{
    showInFolder(*loadDialog);
}

void MBEMain::APSave()
{
    showInFolder(*saveDialog);
}

void MBEMain::APLoadProg(const QString& fname)
{
    QFile file(fname);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        NELVO_DEBUG("program") << cannotOpen << fname << bracket;
        return;
    }
    QTextStream stream(&file);
    const QVector<ProgramStep> steps = ProgramFile::read(stream, progLines.size());

    const HeldUpdates held(*SA01);
    // Rows the file does not fill are cleared. Clearing them all first would show every widget twice.
    for (int k = 0; k < progLines.size(); ++k) {
        progLines[k]->setContents(k < steps.size() ? steps[k] : ProgramStep());
    }
}

void MBEMain::APSaveProg(const QString& fname)
{
    QVector<ProgramStep> steps;
    steps.reserve(progLines.size());
    for (const aLine* line : qAsConst(progLines)) {
        steps.append(line->contents());
    }
    if (!save(fname, steps)) {
        NELVO_DEBUG("program") << cannotOpen << fname << bracket;
    }
}
