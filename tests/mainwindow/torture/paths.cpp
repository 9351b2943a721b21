// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Every path on which an operator makes the window call the SDK.
#include "paths.h"

#include "deeds.h"
#include "tables.h"

#include <QLatin1Char>
#include <QTest>
#include <QWidget>

#include <utility>

namespace
{

/// Collects the paths of one family after the other.
class Paths
{
public:
    std::vector<Path> all;
    /// Of the paths that are added next.
    Group group{Group::Sessions};

    void addSessions();
    void addSettings();
    void addRegions();
    void addExpert();
    void addBlendUnit();
    void addBadPixels();

private:
    Path &add(const QString &name, const Deed &act, const std::function<void(Oracle &)> &promise)
    {
        all.push_back({group, name, act, promise});
        return all.back();
    }
};

void Paths::addSessions()
{
    group = Group::Sessions;
    const auto connectDevice = [](Oracle &oracle) {
        oracle.connectDevice();
    };
    const auto readAll = [](Oracle &oracle) {
        oracle.readAllParameters();
    };
    for (const bool expertMode : {true, false}) {
        Path &path = add(expertMode ? QStringLiteral("connect in expert mode") : QStringLiteral("connect"),
                         press(QStringLiteral("connectDeviceButton")), connectDevice);
        path.expertMode = expertMode;
        path.startsConnected = false;
    }
    int page{0};
    for (const char *const name : {"Fusion", "Veltrix KR", "Visible"}) {
        add(QStringLiteral("Read, page %1 in view").arg(named(name)),
            press(QStringLiteral("readParamButtonUser")), readAll)
            .prepare = both(turnTo(page), changeUnits);
        add(QStringLiteral("Read Expert, page %1 in view").arg(named(name)),
            press(QStringLiteral("readParamButtonExpert")), [](Oracle &oracle) { oracle.readParamsExpert(); })
            .prepare = both(turnTo(page), changeUnits);
        const int from{page == 0 ? 1 : 0};
        add(QStringLiteral("turn to page %1").arg(named(name)), turnTo(page), [page](Oracle &oracle) {
            oracle.showPage(page);
        }).prepare = turnTo(from);
        ++page;
    }
    add(QStringLiteral("disconnect"), press(QStringLiteral("disconnectDeviceButton")),
        [](Oracle &oracle) { oracle.disconnectDevice(); });
    const Deed leaveEditPending = [](TestWindow &test) {
        test.showPage(QStringLiteral("Veltrix_KR_tab"));
        test.showPage(QStringLiteral("LutSection"));
        auto &spinBox = test.child<QWidget>(QStringLiteral("AhcBlackGainLimSpin"));
        spinBox.setFocus();
        QTest::keyClick(&spinBox, Qt::Key_Up);
    };
    add(QStringLiteral("disconnect with a pending edit"), press(QStringLiteral("disconnectDeviceButton")),
        [](Oracle &oracle) {
            oracle.send(QStringLiteral("AhcBlackGainLimSpin"));
            oracle.disconnectDevice();
        })
        .prepare = leaveEditPending;
}

void Paths::addSettings()
{
    group = Group::Settings;
    for (const ToggleRow &row : toggleRows) {
        const QString button{named(row.button)};
        add(QStringLiteral("click %1").arg(button), press(button),
            [=](Oracle &oracle) { oracle.clickToggle(button); });
    }
    for (const ChoiceRow &row : choiceRows) {
        const QString comboBox{named(row.comboBox)};
        add(QStringLiteral("choose in %1").arg(comboBox), choose(comboBox, 1),
            [=](Oracle &oracle) { oracle.chooseAndSend(comboBox, 1); });
    }
    const auto finishing = [this](const char *name, double value) {
        const QString spinBox{named(name)};
        add(QStringLiteral("finish the edit of %1").arg(spinBox), finishEdit(spinBox), [=](Oracle &oracle) {
            oracle.send(spinBox);
        }).prepare = setValue(spinBox, value);
    };
    for (const Pair &pair : pairs) {
        const QString slider{named(pair.slider)};
        add(QStringLiteral("release %1").arg(slider), releaseSlider(slider), [=](Oracle &oracle) {
            oracle.send(slider);
        }).prepare = setValue(slider, pair.position);
        finishing(pair.box, pair.otherValue);
    }
    for (const BoxRow &row : boxRows) {
        finishing(row.box, row.otherValue);
    }
    add(QStringLiteral("ApplyParamsUser"), invoke("ApplyParamsUser"), [](Oracle &oracle) {
        oracle.applyUser();
    }).prepare = changeUnits;
    add(QStringLiteral("Reset"), press(QStringLiteral("resetParamButtonUser")), [](Oracle &oracle) {
        oracle.reset();
    }).prepare = changeDefaults;
}

void Paths::addRegions()
{
    group = Group::Regions;
    for (const RegionRow &row : regionRows) {
        const QString boxes{named(row.boxes)};
        const int number{row.number};
        const QString enable{named(row.enable)};
        const Deed switchOn{enable.isEmpty() ? Deed{[](TestWindow & /*test*/) {
        }}
                                             : press(enable)};
        for (const char *const name : {"X1", "X2", "Y1", "Y2"}) {
            const QString coordinate{named(name)};
            const auto promise = [=](Oracle &oracle) {
                oracle.editRegion(number, coordinate);
            };
            add(QStringLiteral("finish the edit of %1").arg(boxes + coordinate),
                finishEdit(boxes + coordinate), promise)
                .prepare =
                both(switchOn, setValue(boxes + coordinate, coordinate.endsWith(QLatin1Char{'1'}) ? 5 : 300));
            const QString first{boxes + coordinate.left(1) + QLatin1Char{'1'}};
            const QString second{boxes + coordinate.left(1) + QLatin1Char{'2'}};
            add(QStringLiteral("finish the edit of %1 in the wrong order").arg(boxes + coordinate),
                finishEdit(boxes + coordinate), promise)
                .prepare = both(switchOn, both(setValue(first, 250), setValue(second, 150)));
        }
        if (enable.isEmpty()) {
            continue;
        }
        for (const bool on : {true, false}) {
            add(QStringLiteral("switch %1 %2").arg(enable, on ? QStringLiteral("on") : QStringLiteral("off")),
                press(enable), [=](Oracle &oracle) { oracle.checkRegion(enable, on); })
                .prepare = on ? setValue(boxes + QStringLiteral("X2"), 99) : press(enable);
        }
    }
}

void Paths::addExpert()
{
    group = Group::ExpertSettings;
    for (const CorrectionRow &row : correctionRows) {
        const QString checkBox{named(row.checkBox)};
        if (row.slot != nullptr) {
            add(QStringLiteral("click %1").arg(checkBox), press(checkBox),
                [=](Oracle &oracle) { oracle.checkCorrection(checkBox, false); });
        }
    }
    const QString baudRate{QStringLiteral("BaudRateCB")};
    add(QStringLiteral("choose in %1").arg(baudRate), choose(baudRate, 4), [=](Oracle &oracle) {
        oracle.controls.choose(baudRate, 4);
        oracle.krBaudRate();
    });
    add(QStringLiteral("ApplyParamsExpert"), invoke("ApplyParamsExpert"),
        [](Oracle &oracle) { oracle.applyExpert(); });
    add(QStringLiteral("ApplyNucRequest"), invoke("ApplyNucRequest"),
        [](Oracle &oracle) { oracle.requestNuc(); });
}

void Paths::addBlendUnit()
{
    group = Group::BlendUnit;
    const auto configureZoom = [](Oracle &oracle) {
        oracle.configureZoom();
    };
    const Deed aimZoom{both(setValue(QStringLiteral("FusionZoomFactorSB"), 2.345),
                            choose(QStringLiteral("FusionZoomMethod"), 1))};
    add(QStringLiteral("configure zoom on the Fusion page"), press(QStringLiteral("FusionConfigureZoomPB")),
        configureZoom)
        .prepare = aimZoom;
    add(QStringLiteral("configure zoom on the camera's page"), press(QStringLiteral("configureZoomButton")),
        configureZoom)
        .prepare = aimZoom;
    const QString method{QStringLiteral("methodZoomEdit")};
    add(QStringLiteral("choose in %1").arg(method), choose(method, 1), [=](Oracle &oracle) {
        oracle.controls.choose(method, 1);
        oracle.configureZoom();
    });
    const QString stream{QStringLiteral("FusionWarpCB")};
    add(QStringLiteral("choose in %1").arg(stream), choose(stream, 2), [=](Oracle &oracle) {
        oracle.controls.choose(stream, 2);
        oracle.readWarp();
    });
    add(QStringLiteral("send the warp"), press(QStringLiteral("FusionWarpPB")),
        [](Oracle &oracle) { oracle.setWarp(); })
        .prepare = both(setValue(QStringLiteral("WarpA11CoeffSB"), -2.9),
                        setValue(QStringLiteral("WarpA23CoeffSB"), 2.9));
    const QString startingMode{QStringLiteral("startingModeCB")};
    add(QStringLiteral("choose in %1").arg(startingMode), choose(startingMode, 3), [=](Oracle &oracle) {
        oracle.controls.choose(startingMode, 3);
        oracle.setStartingMode();
    });
    int mode{0};
    for (const VideoModeRow &row : videoModeRows) {
        const QString button{named(row.button)};
        add(QStringLiteral("click %1").arg(button), press(button),
            [=](Oracle &oracle) { oracle.clickVideoMode(mode); });
        ++mode;
    }
    add(QStringLiteral("save the user parameters"), press(QStringLiteral("saveParamButtonUser")),
        [](Oracle &oracle) { oracle.save(false); });
    add(QStringLiteral("save the expert parameters"), press(QStringLiteral("saveParamFactoryPB")),
        [](Oracle &oracle) { oracle.save(true); });
}

void Paths::addBadPixels()
{
    group = Group::BadPixels;
    constexpr int column{123};
    constexpr int row{234};
    const Deed aim{both(setValue(QStringLiteral("xBadPixelCoordinate"), column),
                        setValue(QStringLiteral("yBadPixelCoordinate"), row))};
    add(QStringLiteral("read the table of bad pixels"), press(QStringLiteral("readBPRTableButton")),
        [](Oracle &oracle) { oracle.transferBprTable(true); });
    add(QStringLiteral("write the table of bad pixels"), press(QStringLiteral("writeBPRTableButton")),
        [](Oracle &oracle) { oracle.transferBprTable(false); })
        .prepare = press(QStringLiteral("readBPRTableButton"));
    for (const bool isAdd : {true, false}) {
        const QString button{isAdd ? QStringLiteral("addBadPixel") : QStringLiteral("removeBadPixel")};
        add(QStringLiteral("click %1Button").arg(button), press(button + QStringLiteral("Button")),
            [=](Oracle &oracle) { oracle.declarePixel(isAdd, column, row); })
            .prepare = aim;
        const auto declareLine = [=](Oracle &oracle) {
            for (int x{0}; x < 640; ++x) {
                oracle.declarePixel(isAdd, x, row);
            }
        };
        const auto declareColumn = [=](Oracle &oracle) {
            for (int y{0}; y < 480; ++y) {
                oracle.declarePixel(isAdd, column, y);
            }
        };
        for (const auto &[suffix, declare] :
             {std::pair<QString, std::function<void(Oracle &)>>{QStringLiteral("LineButton"), declareLine},
              {QStringLiteral("ColumnButton"), declareColumn}}) {
            Path &path =
                add(QStringLiteral("click %1").arg(button + suffix), press(button + suffix), declare);
            path.prepare = aim;
            path.group = isAdd ? Group::AddedLines : Group::RemovedLines;
            path.isRepeatable = true;
        }
    }
}

} // namespace

const std::vector<Path> &operatorPaths()
{
    static const std::vector<Path> paths = [] {
        Paths collected;
        collected.addSessions();
        collected.addSettings();
        collected.addRegions();
        collected.addExpert();
        collected.addBlendUnit();
        collected.addBadPixels();
        return std::move(collected.all);
    }();
    return paths;
}
