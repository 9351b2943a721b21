// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Whether a command carries what the window showed when it was sent.
#include "sentcommand.h"

#include "calltexts.h"
#include "controls.h"
#include "oracle.h"
#include "tables.h"

#include <QLatin1Char>
#include <QLatin1String>
#include <QStringList>

#include <algorithm>
#include <functional>

using veltrix_simulator::Call;
using veltrix_simulator::Interface;

namespace
{

QString operationOf(const Call &call)
{
    return QString::fromStdString(call.operation);
}

/// The call without its answer.
QString callIn(const Call &call)
{
    return textOf(call).section(QStringLiteral(" -> "), 0, 0);
}

QStringList argumentsIn(const Call &call)
{
    return callIn(call).section(QLatin1Char{'('}, 1).chopped(1).split(QStringLiteral(", "));
}

bool isAccepted(const Call &call)
{
    return textOf(call).endsWith(QStringLiteral(" -> true"));
}

QString unlessEqual(const QString &promised, const QString &came)
{
    return promised == came ? QString{}
                            : QStringLiteral("%1 was promised, there came %2").arg(promised, came);
}

bool isTransfer(const QString &operation)
{
    return operation == QStringLiteral("readBprTable") || operation == QStringLiteral("writeBprTable");
}

bool isPixel(const QString &operation)
{
    return operation.endsWith(QStringLiteral("BadPixel"));
}

bool isCompared(const Call &call)
{
    const QString operation{operationOf(call)};
    return call.interface != Interface::Log && (isCommand(operation) || isTransfer(operation));
}

/// The control that an operation sends, in the oracle's words; empty for the others.
QString controlOf(const QString &operation)
{
    for (const Pair &pair : pairs) {
        if (operation == QString{pair.call}.section('(', 0, 0)) {
            return QString{pair.box};
        }
    }
    for (const ChoiceRow &row : choiceRows) {
        if (operation == QLatin1String{row.operation}) {
            return QString{row.comboBox};
        }
    }
    if (operation == QStringLiteral("setVisibleAgc")) {
        return QStringLiteral("VisAgcTargetSB");
    }
    return operation == QStringLiteral("setVisibleClhe") ? QStringLiteral("VisClheTHSB") : QString{};
}

/// One command, with the calls around it and the picture of it.
class Comparison
{
public:
    Comparison(const std::vector<Call> &itsJournal, std::size_t itsPlace, const Picture &itsPicture,
               const Circumstances &itsCircumstances)
        : journal{itsJournal}, place{itsPlace}, picture{itsPicture}, circumstances{itsCircumstances},
          call{journal[place]}, operation{operationOf(call)}, shown{picture.panel}
    {}

    QString run() const;

private:
    using Promise = std::function<void(Oracle &)>;

    /// So many calls from that place on; the fetching of the SDK's root does not count.
    std::vector<Call> steps(std::size_t from, int count) const;
    /// Compares the calls from the command on with what the oracle promises by the picture.
    QString promised(int count, const Promise &promise) const
    {
        return promised(place, count, shown, promise);
    }
    /// The same from another call on, with the controls as they were before.
    QString promised(std::size_t from, int count, const Controls &before, const Promise &promise) const;
    Controls beforePress(const QString &button) const;
    std::size_t placeBefore() const;
    bool isLogged(const QString &beginning) const;

    QString target() const;
    QString videoMode() const;
    QString toggle(const ToggleRow &row) const;
    QString correction(const CorrectionRow &row) const;
    QString coordinate() const;
    QString regionEdit(int number) const;
    QString regionSwitch(int number) const;
    QString pixel() const;
    QString transfer() const;

    const std::vector<Call> &journal;
    std::size_t place;
    const Picture &picture;
    const Circumstances &circumstances;
    const Call &call;
    QString operation;
    Controls shown;
};

std::vector<Call> Comparison::steps(std::size_t from, int count) const
{
    std::vector<Call> found;
    for (; from < journal.size() && count > 0; ++from) {
        if (journal[from].operation != "get_instance") {
            found.push_back(journal[from]);
            --count;
        }
    }
    return found;
}

QString Comparison::promised(std::size_t from, int count, const Controls &before,
                             const Promise &promise) const
{
    Oracle oracle{steps(from, count), before.panel(), Session{}};
    promise(oracle);
    return oracle.divergence();
}

/// The controls before that button was pressed.
Controls Comparison::beforePress(const QString &button) const
{
    Controls before{shown};
    before.check(button, !shown.isChecked(button));
    return before;
}

std::size_t Comparison::placeBefore() const
{
    std::size_t before{place};
    while (before > 0 && journal[--before].operation == "get_instance") {
    }
    return before;
}

/// Whether the next call is a line of the log that begins so.
bool Comparison::isLogged(const QString &beginning) const
{
    const std::vector<Call> next{steps(place + 1, 1)};
    return !next.empty() && next.front().interface == Interface::Log &&
           recordIn(next.front()).startsWith(beginning);
}

/// A page's own target; reads and connects address each unit, and a script what it names.
QString Comparison::target() const
{
    const int page{shown.index(QStringLiteral("Principal_tab"))};
    const QString came{callIn(call)};
    if (!circumstances.asked.commands.contains(came)) {
        QString wrong{unlessEqual(QStringLiteral("setTarget(%1)").arg(page), came)};
        if (!wrong.isEmpty()) {
            return wrong;
        }
    }
    const int number{argumentsIn(call).value(0).toInt()};
    return promised(isAccepted(call) ? 3 : 2, [number](Oracle &oracle) { oracle.targetChanged(number); });
}

/// Which of the buttons was pressed is among what was asked for.
QString Comparison::videoMode() const
{
    const int mode{argumentsIn(call).value(0).toInt()};
    if (mode < 0 || mode > 2) {
        return QStringLiteral("there is no such mode: ") + textOf(call);
    }
    Oracle oracle{steps(place, 2), shown.panel(), Session{}};
    oracle.clickVideoMode(mode);
    const QString divergence{oracle.divergence()};
    return divergence.isEmpty() ? differences(oracle.panel(), shown.panel()).value(0) : divergence;
}

QString Comparison::toggle(const ToggleRow &row) const
{
    const QString button{named(row.button)};
    return promised(place, 2, beforePress(button), [&](Oracle &oracle) { oracle.clickToggle(button); });
}

/// With the expert parameters they are sent with a line of the log, by their own boxes without one.
QString Comparison::correction(const CorrectionRow &row) const
{
    const QString checkBox{named(row.checkBox)};
    const bool on{shown.isChecked(checkBox)};
    if (row.slot == nullptr || isLogged(named(row.action))) {
        return promised(2, [&](Oracle &oracle) {
            oracle.command(QStringLiteral("%1(%2)").arg(operation, boolText(on)), named(row.action));
        });
    }
    return promised(place, 1, beforePress(checkBox),
                    [&](Oracle &oracle) { oracle.checkCorrection(checkBox, on); });
}

QString Comparison::coordinate() const
{
    const int number{argumentsIn(call).value(1).toInt()};
    if (isLogged(QStringLiteral("Set ROI "))) {
        return regionEdit(number);
    }
    // A switch sends all four, the first of them is compared with the others.
    return operation == QStringLiteral("setRoiX1") || place == picture.begin ||
                   !operationOf(journal[placeBefore()]).startsWith(QStringLiteral("setRoi"))
               ? regionSwitch(number)
               : QString{};
}

QString Comparison::regionEdit(int number) const
{
    const QStringList arguments{argumentsIn(call)};
    const QString name{operation.right(2)};
    const bool isKnown{number >= 0 && number <= 3};
    if (isKnown && !circumstances.boxesWereShown) {
        Oracle oracle{steps(place, 2), shown.panel(), Session{}};
        oracle.editRegion(number, name);
        const QString divergence{oracle.divergence()};
        return divergence.isEmpty() && !oracle.boxes().isEmpty() ? QStringLiteral("no box about the order")
                                                                 : divergence;
    }
    // A script may name a region that does not exist. What raised the box about the order is sent as the
    // operator left it, and shown with the value of the other limit.
    const qint64 sent{arguments.value(0).toLongLong()};
    const qint64 inBox{isKnown ? shown.whole(named(regionOf(number).boxes) + name) : 0};
    const bool mayDiffer{circumstances.scriptInBox ||
                         (isKnown && name.endsWith(QLatin1Char{'1'}) && sent > inBox)};
    const auto flag = [&](const char *checkBox) {
        return boolText(shown.isChecked(named(checkBox)));
    };
    return unlessEqual(QStringLiteral("%1(%2, %3, %4, %5, %6)")
                           .arg(operation)
                           .arg(mayDiffer ? sent : inBox)
                           .arg(number)
                           .arg(flag("roi1IncEnable"), flag("roi0ExcEnable"), flag("roi1ExcEnable")),
                       callIn(call));
}

QString Comparison::regionSwitch(int number) const
{
    if (number < 1 || number > 3) {
        return QStringLiteral("there is no switch for ") + textOf(call);
    }
    const QString checkBox{named(regionOf(number).enable)};
    return promised(place, 4, beforePress(checkBox),
                    [&](Oracle &oracle) { oracle.checkRegion(checkBox, shown.isChecked(checkBox)); });
}

/// Whether they are all of a row or of a column is asked of the whole action.
QString Comparison::pixel() const
{
    const QStringList arguments{argumentsIn(call)};
    return promised(2, [&](Oracle &oracle) {
        oracle.declarePixel(operation == QStringLiteral("addBadPixel"), arguments.value(0).toInt(),
                            arguments.value(1).toInt());
    });
}

QString Comparison::transfer() const
{
    const bool isRead{operation == QStringLiteral("readBprTable")};
    if (isAccepted(call)) {
        return promised(3, [isRead](Oracle &oracle) { oracle.transferBprTable(isRead); });
    }
    // The box about the failure takes the focus from a spin box, which then sends, before the line comes.
    return unlessEqual(QStringLiteral("%1(4096, 16384, %2)").arg(operation).arg(isRead ? 9 : 8),
                       callIn(call));
}

QString Comparison::run() const
{
    for (const ToggleRow &row : toggleRows) {
        if (operation == QStringLiteral("set") + named(row.operation)) {
            return toggle(row);
        }
    }
    for (const CorrectionRow &row : correctionRows) {
        if (operation == QStringLiteral("set") + named(row.operation)) {
            return correction(row);
        }
    }
    if (operation.startsWith(QStringLiteral("setRoi"))) {
        return coordinate();
    }
    if (isPixel(operation)) {
        return pixel();
    }
    if (isTransfer(operation)) {
        return transfer();
    }
    if (operation == QStringLiteral("setTarget")) {
        return target();
    }
    if (operation == QStringLiteral("setVideoMode")) {
        return videoMode();
    }
    if (operation == QStringLiteral("setBaudRate")) {
        return unlessEqual(QStringLiteral("setBaudRate(%1)")
                               .arg(shown.itemText(QStringLiteral("BaudRateConnectCB")).toInt()),
                           callIn(call));
    }
    if (operation == QStringLiteral("setMavlinkBaudRate")) {
        return promised(isAccepted(call) ? 3 : 2, &Oracle::krBaudRate);
    }
    if (operation == QStringLiteral("configureZoom")) {
        // It keeps the centre that it has just read.
        return promised(placeBefore(), 3, shown, &Oracle::configureZoom);
    }
    if (operation == QStringLiteral("setFrameRate")) {
        // The rate that the camera has is asked for before another one is sent.
        return promised(placeBefore(), 3, shown,
                        [](Oracle &oracle) { oracle.send(QStringLiteral("frameRateCB")); });
    }
    if (operation == QStringLiteral("setWarp")) {
        return promised(2, &Oracle::setWarp);
    }
    if (operation == QStringLiteral("setStartingMode")) {
        return promised(2, &Oracle::setStartingMode);
    }
    if (operation == QStringLiteral("saveBlendUnitParameters")) {
        // Which of the buttons was pressed is among what was asked for.
        const bool expert{argumentsIn(call).value(0) == QStringLiteral("1")};
        return promised(2, [expert](Oracle &oracle) { oracle.save(expert); });
    }
    const QString control{controlOf(operation)};
    if (!control.isEmpty()) {
        return promised(2, [&](Oracle &oracle) { oracle.send(control); });
    }
    // It has no numbers, and nothing is shown or logged about it.
    return unlessEqual(QStringLiteral("processNucRequest()"), callIn(call));
}

} // namespace

bool needPicture(const std::vector<Call> &journal, std::size_t begin)
{
    return std::any_of(journal.begin() + static_cast<std::ptrdiff_t>(begin), journal.end(), isCompared);
}

QString wronglySent(const Picture &picture, const std::vector<Call> &journal,
                    const Circumstances &circumstances)
{
    for (std::size_t place{picture.begin}; place < picture.end; ++place) {
        if (isCompared(journal[place])) {
            QString wrong{Comparison{journal, place, picture, circumstances}.run()};
            if (!wrong.isEmpty()) {
                return wrong;
            }
        }
    }
    return {};
}

QString wronglyDeclared(const std::vector<Call> &journal, const Panel &panel, const Asked &asked)
{
    const Controls shown{panel};
    const qint64 column{shown.whole(QStringLiteral("xBadPixelCoordinate"))};
    const qint64 row{shown.whole(QStringLiteral("yBadPixelCoordinate"))};
    for (const QString &operation : {QStringLiteral("addBadPixel"), QStringLiteral("removeBadPixel")}) {
        const int count{asked.commands.value(operation)};
        if (count != 1 && count != 640 && count != 480) {
            // None, or several at once, of which a script has run one while a box was shown.
            continue;
        }
        qint64 number{0};
        for (const Call &call : journal) {
            if (operationOf(call) != operation) {
                continue;
            }
            QString wrong{unlessEqual(QStringLiteral("%1(%2, %3)")
                                          .arg(operation)
                                          .arg(count == 640 ? number : column)
                                          .arg(count == 480 ? number : row),
                                      callIn(call))};
            if (!wrong.isEmpty()) {
                return wrong;
            }
            ++number;
        }
        if (number != 0 && number != count) {
            return QStringLiteral("%1 was sent %2 times instead of %3").arg(operation).arg(number).arg(count);
        }
    }
    return {};
}
