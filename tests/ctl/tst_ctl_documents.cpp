// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The examples of the guide are real, and the manual page has every setting.
#include "ctlrun.h"
#include "testclass.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTest>

class CtlDocumentsTest : public QObject
{
    Q_OBJECT

private slots:
    void examplesAreReal_data();
    void examplesAreReal();
    void manualPageHasEverySetting();
    void manualPageHasEveryCommand();
    void manualPageIsWellFormed();
};

namespace
{

QString contentsOf(const QString &fileName)
{
    QFile file{fileName};
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString{};
}

/// Writes the file when whoever runs the test asks for it.
void rewrite(const QString &fileName, const QString &text)
{
    QFile file{fileName};
    if (qEnvironmentVariableIsSet("PILOTEL_STORE_EXAMPLES") && file.open(QIODevice::WriteOnly)) {
        file.write(text.toUtf8());
    }
}

/// The times of readings and of recorded calls are others each time.
QString withoutTimes(QString text)
{
    static const QRegularExpression seconds{R"(^ +\d+\.\d{3}  )", QRegularExpression::MultilineOption};
    return text.replace(QRegularExpression{R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z)"}, "TIME")
        .replace(seconds, "SECONDS  ");
}

/// The text with what the commands of its examples write.
QString withRealExamples(const QString &text)
{
    CtlFolder folder;
    folder.environment.insert("PATH", QFileInfo{CTL}.absolutePath() + ':' + folder.environment.value("PATH"));
    QStringList result;
    bool inExample{false};
    int status{0};
    for (const QString &line : text.split('\n')) {
        if (line.startsWith("```")) {
            inExample = line == "```console";
        } else if (inExample && line.startsWith("$ ")) {
            const QString command{QString{"(exit %1)\n"}.arg(status) + line.mid(2)};
            const Outcome outcome{
                ::run("bash", {"-c", "exec 2>&1\n" + command}, folder.environment, folder.path({}))};
            status = outcome.status;
            result.append(line);
            QStringList written{outcome.output.split('\n')};
            written.removeLast();
            for (const QString &output : written) {
                if (!output.contains("this fault never happened")) {
                    result.append(output);
                }
            }
            continue;
        } else if (inExample) {
            continue;
        }
        result.append(line);
    }
    return result.join('\n');
}

/// Text as the manual page has it.
QString escaped(QString text)
{
    return text.replace('\\', "\\e").replace('-', "\\-");
}

/// A line feed in place of the last space that keeps a line within the 80 bytes of a manual page.
QString inLines(const QString &text)
{
    constexpr int longest{80};
    QString lines;
    int length{0};
    for (const QString &word : text.split(' ')) {
        const bool starts{lines.isEmpty() || length + 1 + word.size() > longest};
        if (!lines.isEmpty()) {
            lines += starts ? '\n' : ' ';
        }
        lines += word;
        length = starts ? word.size() : length + 1 + word.size();
    }
    return lines;
}

/// What the manual page says of every setting that can be set.
QString settingsOfManualPage()
{
    CtlFolder folder;
    const QJsonDocument list{QJsonDocument::fromJson(folder.run({"list", "--json"}).output.toUtf8())};
    const QStringList rows{folder.run({"list"}).output.split('\n', Qt::SkipEmptyParts)};
    QString text;
    const QJsonArray settings = list["settings"].toArray();
    for (int row{0}; row < settings.size(); ++row) {
        const QJsonObject setting{settings[row].toObject()};
        const QString range{rows[row + 1].section("  ", -1).trimmed()};
        if (setting["canBeSet"].toBool()) {
            text += ".It Cm " + setting["name"].toString() + '\n' +
                    inLines(escaped(setting["meaning"].toString()) + ':') + '\n' +
                    inLines(escaped(range) + '.') + '\n';
        }
    }
    return text;
}

const QString begin{".Bl -tag -width Ds\n.\\\" Settings\n"};
const QString end{".\\\" End of settings\n.El\n"};

} // namespace

void CtlDocumentsTest::examplesAreReal_data()
{
    QTest::addColumn<QString>("document");
    for (const char *const name : {"command-line.md", "recordings.md"}) {
        QTest::newRow(name) << QStringLiteral(DOCUMENTS "/") + name;
    }
}

void CtlDocumentsTest::examplesAreReal()
{
    QFETCH(const QString, document);
    const QString text{contentsOf(document)};
    QVERIFY(text.contains("```console"));
    const QString real{withRealExamples(text)};
    rewrite(document, real);
    const QStringList lines{withoutTimes(text).split('\n')};
    const QStringList realLines{withoutTimes(real).split('\n')};
    for (int line{0}; line < qMin(lines.size(), realLines.size()); ++line) {
        QCOMPARE(lines[line], realLines[line]);
    }
    QCOMPARE(lines.size(), realLines.size());
}

void CtlDocumentsTest::manualPageHasEverySetting()
{
    const QString text{contentsOf(MANUAL_PAGE)};
    const int from{text.indexOf(begin)};
    const int to{text.indexOf(end)};
    QVERIFY(from > 0 && to > from);
    const QString settings{settingsOfManualPage()};
    QVERIFY(settings.contains(".It Cm camera.gamma\n"));
    rewrite(MANUAL_PAGE, text.left(from + begin.size()) + settings + text.mid(to));
    QCOMPARE(text.mid(from + begin.size(), to - from - begin.size()), settings);
}

void CtlDocumentsTest::manualPageHasEveryCommand()
{
    const QString text{contentsOf(MANUAL_PAGE)};
    CtlFolder folder;
    QStringList commands{folder.run({"--complete", ""}).output.split('\n', Qt::SkipEmptyParts)};
    QVERIFY(commands.contains("watch"));
    for (const char *const group : {"profile", "watch", "bad-pixels", "recording"}) {
        commands.removeOne(group);
        for (const QString &command :
             folder.run({"--complete", group, ""}).output.split('\n', Qt::SkipEmptyParts)) {
            commands.append(QString{group} + ' ' + command);
            for (const QString &option :
                 folder.run({"--complete", group, command, "--"}).output.split('\n', Qt::SkipEmptyParts)) {
                QVERIFY2(text.contains("\\-" + escaped(option.mid(2))), qPrintable(option));
            }
        }
    }
    for (const QString &command : commands) {
        QVERIFY2(text.contains(".It Cm " + escaped(command)), qPrintable(command));
    }
}

void CtlDocumentsTest::manualPageIsWellFormed()
{
    const Outcome outcome{
        ::run("mandoc", {"-T", "lint", "-W", "warning", MANUAL_PAGE}, programEnvironment())};
    QCOMPARE(outcome.output + outcome.errors, QString{});
    QCOMPARE(outcome.status, 0);
}

PILOTEL_TEST_CLASS(CtlDocumentsTest)
#include "tst_ctl_documents.moc"
