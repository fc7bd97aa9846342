#include "growthcheck/app/session.h"

#include "base/toolkittexts.h"
#include "growthcheck/app/desktop.h"
#include "growthcheck/app/spokenlanguage.h"
#include "growthcheck/check/check.h"
#include "growthcheck/check/words.h"
#include "growthcheck/comparison/compare.h"
#include "growthcheck/output/output.h"
#include "growthcheck/page/page.h"
#include "growthcheck/rehearsal/starttemperatures.h"

#include <QSaveFile>

namespace GrowthCheck {

namespace {

QString cannotRead(const QString& fileName, const QString& why)
{
    return Words::tr("%1 cannot be read: %2").arg(fileName, why);
}

class Session
{
public:
    Session(const Options& asked, const Outlets& givenOutlets)
        : options(asked)
        , outlets(givenOutlets)
    {
    }

    ExitStatus check()
    {
        Assumptions assumptions;
        std::optional<Rates> rates;
        if (!readStart(assumptions) || !readRates(rates)) {
            return CannotRead;
        }
        for (const QString& fileName : options.programs) {
            const std::optional<LoadedProgram> program = loadOne(fileName);
            if (program) {
                programs.append(checkProgram(*program, assumptions, rates));
            }
        }
        const bool isWritten = writesPage() ? writePage() : write();
        return isWritten ? status() : CannotRead;
    }

    ExitStatus compareRun()
    {
        const QString& fileName = options.programs.constFirst();
        const std::optional<LoadedProgram> program = loadOne(fileName);
        std::optional<Rates> rates;
        if (!program || !readRates(rates)) {
            return CannotRead;
        }
        const RecordedRuns runs = readRun(options.journal, options.run, program->steps);
        if (!isRead(options.journal, runs.wrong)) {
            return CannotRead;
        }
        const CheckedProgram checked
            = checkProgram(*program, assumptionsOf(options.assumptions, *runs.run), rates);
        Comparison comparison = compare(checked, *runs.run);
        comparison.journalName = options.journal;
        comparison.runs = runs.count;
        if (writesPage()) {
            if (!writePage(pageOf(checked, comparison))) {
                return CannotRead;
            }
        } else {
            write(comparison);
        }
        return comparison.differs() ? Found : Clean;
    }

private:
    std::optional<LoadedProgram> loadOne(const QString& fileName) const
    {
        std::optional<LoadedProgram> program = loadProgram(fileName);
        if (!program) {
            outlets.complain(cannotRead(fileName,
                Words::tr("it is missing, no plain file, larger than 16 MiB, or not to be opened")));
        }
        return program;
    }

    bool readStart(Assumptions& assumptions)
    {
        assumptions = options.assumptions;
        if (options.startJournal.isEmpty()) {
            return true;
        }
        const QString wrong = startFromJournal(options.startJournal, assumptions);
        // What is told by hand is told against the journal.
        for (size_t channel = 0; channel < assumptions.starts.size(); ++channel) {
            const Assumptions::Start& told = options.assumptions.starts.at(channel);
            if (told.kind != Assumptions::Start::Kind::NotTold) {
                assumptions.starts.at(channel) = told;
            }
        }
        return isRead(options.startJournal, wrong);
    }

    bool readRates(std::optional<Rates>& rates)
    {
        if (options.rates.isEmpty()) {
            return true;
        }
        rates.emplace();
        return isRead(options.rates, GrowthCheck::readRates(options.rates, *rates));
    }

    bool isRead(const QString& fileName, const QString& wrong) const
    {
        if (!wrong.isEmpty()) {
            outlets.complain(cannotRead(fileName, wrong));
        }
        return wrong.isEmpty();
    }

    // A page alone: what is written besides was asked for by its own option.
    bool writesPage() const { return !options.page.isEmpty(); }

    bool writePage() const { return programs.isEmpty() || writePage(pageOf(programs.constFirst())); }

    bool writePage(const QByteArray& page) const
    {
        QSaveFile file(options.page);
        const bool isWritten
            = file.open(QIODevice::WriteOnly) && file.write(page) == page.size() && file.commit();
        if (!isWritten) {
            outlets.complain(Words::tr("%1 cannot be written: %2").arg(options.page, errorText(file)));
        } else if (options.isDropped) {
            showFile(options.page);
        }
        return isWritten;
    }

    bool write() const
    {
        if (options.output == Options::Output::Json) {
            writeJson(programs, outlets.out);
            return true;
        }
        if (options.output == Options::Output::Csv) {
            writeCsvHead(outlets.out);
        }
        for (int i = 0; i < programs.size(); ++i) {
            if (i > 0 && options.output == Options::Output::Text) {
                outlets.out("\n");
            }
            writeOne(programs[i]);
        }
        return true;
    }

    void write(const Comparison& comparison) const
    {
        if (options.output == Options::Output::Json) {
            writeComparedJson(comparison, outlets.out);
        } else if (options.output == Options::Output::Csv) {
            writeComparedCsv(comparison, outlets.out);
        } else {
            writeComparedText(comparison, outlets.out);
        }
    }

    void writeOne(const CheckedProgram& checked) const
    {
        switch (options.output) {
        case Options::Output::Text:
            writeText(checked, outlets.out);
            break;
        case Options::Output::Csv:
            writeCsv(checked, outlets.out);
            break;
        case Options::Output::Vcd:
            writeVcd(checked, outlets.out);
            break;
        case Options::Output::Wire:
            writeWire(checked, outlets.out);
            break;
        case Options::Output::Json:
            break;
        }
    }

    ExitStatus status() const
    {
        if (programs.size() < options.programs.size()) {
            return CannotRead;
        }
        for (const CheckedProgram& checked : programs) {
            if (worst(checked.findings) >= Severity::Warning) {
                return Found;
            }
        }
        return Clean;
    }

    const Options& options;
    const Outlets& outlets;
    QVector<CheckedProgram> programs;
};

} // namespace

ExitStatus runCommandLine(const QStringList& arguments, bool isFromDesktop, const Outlets& outlets)
{
    const SpokenLanguage language(chosenLanguage(arguments));
    const CommandLine commandLine = readCommandLine(arguments, isFromDesktop);
    if (!commandLine.error.isEmpty()) {
        outlets.complain(commandLine.error);
        return Usage;
    }
    if (!commandLine.text.isEmpty()) {
        outlets.out(commandLine.text.toUtf8());
        return Clean;
    }
    Session session(commandLine.options, outlets);
    return commandLine.options.isCompare ? session.compareRun() : session.check();
}

} // namespace GrowthCheck
