// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the window has to do after each answer of the device, compared with what it did.
#pragma once

#include "panel.h"
#include "veltrix_simulator/simulator.h"

#include <QLatin1String>
#include <QMap>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <vector>

/// What a call answered, as the journal has it.
struct Answer
{
    QString text; ///< The result as the journal writes it; empty without one.
    QMap<QString, double> fields;

    bool isOk() const { return text == QStringLiteral("true"); }
    double number() const { return text.toDouble(); }
    double operator[](const char *field) const { return fields.value(QLatin1String{field}); }
};

/// What a session holds beside its controls.
struct Session
{
    bool managerHeld{false};
    bool deviceOpen{false};
    bool lastCommandOk{false};
};

struct ToggleRow;

/// Walks along the journal of what the window did. Each promise says which call or log line has to come next,
/// takes the call's answer from the journal and goes on from that answer. The first step that is not the one
/// promised is kept as the divergence. What the session has to look like in the end is collected meanwhile.
class Oracle
{
public:
    Oracle(std::vector<veltrix_simulator::Call> journal, Panel shown, Session session);

    /// The first broken promise; empty when there is none. Nothing may be left over in the journal.
    QString divergence();
    const QStringList &log() const { return logLines; }
    const QStringList &boxes() const { return shownBoxes; }
    const Panel &panel() const { return controls.panel(); }
    const Session &session() const { return current; }

    // Connection
    void connectDevice();
    void disconnectDevice();
    bool readAllParameters();
    void readParamsExpert();
    void targetChanged(int target);
    void showPage(int page);

    // Reading
    bool readBlendUnit();
    bool readCamera();
    void readExpert();
    void readWarp();

    // Commands
    void command(const QString &text, const QString &action);
    void outcome(const QString &text, const QString &success, const QString &failure);
    void send(const QString &control);
    void clickToggle(const QString &button);
    void chooseAndSend(const QString &comboBox, double index);
    void clickVideoMode(int mode);
    void checkCorrection(const QString &checkBox, bool checked);
    void checkRegion(const QString &checkBox, bool checked);
    void editRegion(int number, const QString &coordinate);
    void configureZoom();
    void setStartingMode();
    void setWarp();
    void save(bool expert);
    void krBaudRate();
    void requestNuc();
    void applyUser();
    void applyExpert();
    void reset();

    // Bad pixels
    void transferBprTable(bool read);
    void declarePixel(bool add, int column, int row);

    Controls controls;

private:
    const veltrix_simulator::Call *next(const QString &wanted);
    Answer call(const QString &text);
    void line(const QString &text);
    void box(const QString &title, const QString &text);
    void warningBox(const QString &text);
    /// A default that the configuration gave; they may be asked for in any order.
    Answer byDefault(const QString &operation);

    void fetchConfiguration() { call(QStringLiteral("getConfiguration()")); }
    void returnDevice();
    bool openCommunication();
    void setConnected(bool connected);
    void takeRanges();
    void readTemperatures(int unit);
    void comError();

    void showVideoMode(int mode);
    void readVideoMode();
    void readZoom();
    void readVisibleAgc();
    void readVisibleClhe();
    void readStartingMode();

    void readIdentity();
    void readToggle(const ToggleRow &row);
    void readRegions();
    bool sendCoordinate(const QString &coordinate, qint64 pixels, int number);
    void readAhc();
    void readEdge();
    void frameRate();
    void resetRegions();

    std::vector<veltrix_simulator::Call> steps;
    std::size_t position{0};
    QMap<QString, QStringList> defaults; ///< Texts of the calls that asked for a default, by operation.
    Session current;
    QString broken;
    QStringList logLines;
    QStringList shownBoxes;
};
