#include "growthcheck/page/page.h"

#include "growthcheck/check/words.h"
#include "growthcheck/output/reportparts.h"
#include "growthcheck/page/markup.h"
#include "growthcheck/page/pagetables.h"
#include "growthcheck/page/picturedata.h"
#include "growthcheck/page/picturemarkup.h"

#include <QFile>
#include <QFileInfo>

// Outside of any namespace, as the macro wants it.
static void initPageResource()
{
    Q_INIT_RESOURCE(page);
}

namespace GrowthCheck {

namespace {

using namespace Markup;

QByteArray resource(const char* name)
{
    initPageResource();
    QFile file(QStringLiteral(":/growthcheck/page/") + QLatin1String(name));
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

QByteArray head(const QString& title)
{
    return element("head",
        "<meta charset=\"utf-8\">\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
        "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
        "style-src 'unsafe-inline'; script-src 'unsafe-inline'\">\n"
            + element("title", escaped(title)) + '\n' + element("style", '\n' + resource("page.css")));
}

QByteArray button(const char* name, const QString& text)
{
    return element("button", escaped(text), QByteArray("type=\"button\" id=\"") + name + '"');
}

QByteArray pictureSection(const Picture& picture, const QDateTime& runAt)
{
    QByteArray content = element("h2", escaped(Words::tr("Picture")));
    if (picture.isCut) {
        content += element("p", escaped(Words::tr("Not everything that is played is in the picture.")));
    }
    content += element("p",
        button("nearer", Words::tr("Nearer")) + ' ' + button("farther", Words::tr("Farther")) + ' '
            + button("all", Words::tr("All")) + ' '
            + element("span", escaped(Words::tr("or turn the wheel and drag")), "class=\"hint\""),
        "class=\"controls\"");
    content += element("div", pictureMarkup(picture), "class=\"picture\" id=\"picture\"");
    content += element("p", "&nbsp;", "class=\"values\" id=\"values\"");
    content += element("script", pictureData(picture, runAt), "type=\"application/json\" id=\"data\"");
    return element("section", content) + '\n';
}

QByteArray summarySection(const QString& title, const QStringList& lines)
{
    QByteArray content = element("h1", escaped(title));
    for (const QString& line : lines) {
        content += element("p", escaped(line), "class=\"summary\"");
    }
    return element("header", content) + '\n';
}

QByteArray section(const QByteArray& content)
{
    return element("section", content) + '\n';
}

QByteArray document(const QString& title, const QByteArray& body)
{
    return "<!DOCTYPE html>\n"
        + element("html",
            head(title) + '\n' + element("body", '\n' + body + element("script", '\n' + resource("page.js"))),
            "lang=\"" + pageLanguage().toLatin1() + '"')
        + '\n';
}

} // namespace

QByteArray pageOf(const CheckedProgram& checked)
{
    const QString title = QFileInfo(checked.program.fileName).fileName();
    QByteArray body = summarySection(title, summaryLines(checked));
    body += section(findingsTable(checked.findings));
    body += pictureSection(pictureOf(checked.timeline), checked.assumptions.runAt);
    if (checked.layers) {
        body += section(layersTable(*checked.layers));
    }
    return document(title, body + section(timelineTable(checked)));
}

QByteArray pageOf(const CheckedProgram& checked, const Comparison& comparison)
{
    const QString title = QFileInfo(checked.program.fileName).fileName();
    QByteArray body = summarySection(title, summaryLines(comparison));
    body += section(findingsTable(comparison.findings));
    body += pictureSection(pictureOf(comparison), comparison.run.startedAt);
    if (checked.layers) {
        body += section(layersTable(*checked.layers));
    }
    return document(title, body + section(comparedTable(comparison)));
}

QString pageLanguage()
{
    return Words::tr("en", "the language of these texts, as HTML names it");
}

} // namespace GrowthCheck
