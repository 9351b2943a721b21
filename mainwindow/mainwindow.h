// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The program's only window: every handler of the operator's actions and the state of the session.
#pragma once

#include <QDir>
#include <QList>
#include <QMainWindow>
#include <QSerialPortInfo>

#include <cstdint>
#include <optional>
#include <string>

class Ui_MainWindow;

namespace veltrix_sdk
{
class IDeviceControl;
class IDeviceManager;
class ISdkConfiguration;
struct FirmwareVersions;
} // namespace veltrix_sdk

enum class Region;
struct ToggleSetting;
struct VideoMode;

/// The main window. Every handler runs on the GUI thread, calls the device synchronously and tells the
/// outcome in one line of the log. A device is open from a successful openDevice until closeDevice; without
/// one, a handler calls nothing.
class MainWindow : public QMainWindow
{
    Q_OBJECT
    /// Result of the most recent device command.
    Q_PROPERTY(bool lastCommandOk READ wasLastCommandOk)

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    bool wasLastCommandOk() const { return lastCommandOk; }

private slots:
    // Window
    void createAboutWindow();

    // Operation log
    void appendLog(std::string line);
    void readTemp(int fpgaType);

    // Discovery and connection
    void scanDevice();
    void connectDevice();
    void disconnectDevice();
    void ChangeBaudRate();
    bool openCommunication(std::string port);
    void targetChanged(int target);
    bool readAllParameters();
    void readParamsExpert();
    void updateTabAvailability();

    // Sliders and their spin boxes
    void GammaUserSliderChanged(int position);
    void GammaUserValueChanged(double value);
    void ClheUserSliderChanged(int position);
    void ClheUserValueChanged(double value);
    void SharpeningUserSliderChanged(int position);
    void SharpeningUserValueChanged(double value);
    void SharpeningTHSliderChanged(int position);
    void SharpeningTHValueChanged(double value);
    void AhcBlackGainlimSliderChanged(int position);
    void AhcBlackGainLimSpinValueChanged(int value);
    void AhcWhiteGainlimSliderChanged(int position);
    void AhcWhiteGainLimSpinValueChanged(int value);
    void TempoFilterSliderChanged(int position);
    void TempoFiltSpinValueChanged(int value);
    void GSKExpertSliderChanged(int position);
    void GSKExpertValueChanged(double value);
    void GFIDExpertSliderChanged(int position);
    void GFIDExpertValueChanged(double value);
    void GMSExpertSliderChanged(int position);
    void GMSExpertValueChanged(double value);
    void TINTExpertSliderChanged(int position);
    void TINTExpertValueChanged(double value);

    // Camera parameters
    bool readCameraParameters();
    void videoOutputChanged();
    void frameRateChanged();
    void contrastTypeChanged();
    void colorLutChanged();
    void edgeCorrectionChanged();

    // Expert parameters
    void ReadKrParamsExpert();
    void bprControlChanged();
    void offsetControlChanged();
    void gainControlChanged();

    // Regions of interest
    void roi1IncCheck();
    void roi0ExcCheck();
    void roi1ExcCheck();

    // Video mode and starting mode of the Blend Unit
    void irModeClicked();
    void visibleModeClicked();
    void fusionModeClicked();
    void readVideoMode();
    void startingModeChanged();
    void readStartingMode();

    // Image settings of the Blend Unit
    bool readBlendUnitParameters();
    void readZoom(int selector);
    void configureZoomClicked();
    void readFusionParamsExpert();
    void fusionWarpClicked();
    void readVisibleAgc();
    void visibleAgcChanged();
    void readVisibleClhe();
    void visibleClheChanged();
    void saveBlendUnitExpertClicked();
    void saveBlendUnitUserClicked();

private:
    // Construction
    void wireTargetSelection();
    void wireSlidersAndSpinBoxes();
    void wireZoomFactor();
    void wireButtons();
    void wireCheckBoxes();
    void wireComboBoxes();
    void wireVisibleChannel();
    void removeWhatDoesNotApply(bool expertMode);

    // Operation log
    void reportCommand(bool ok, const char *action);
    void reportOutcome(bool ok, const char *success, const char *failure);

    // Connection
    bool isDeviceOpen() const;
    void returnDevice();
    void commitPendingEdit();
    void setConnectedControls(bool connected);
    void showNotConnectedBox();

    // Camera parameters
    /// Asks the unit for its versions and starts its reading; a unit that does not answer is told about.
    std::optional<veltrix_sdk::FirmwareVersions> startReadingUnit();
    void readIdentity();
    bool readToggle(const ToggleSetting &setting);
    void readOutputs();
    void readFlipAndPolarity();
    void readRegions();
    void readLut();
    void readEdgeCorrection();

    // Regions of interest
    void enableRegion(Region region);

    // Blend Unit
    void showVideoMode(const VideoMode &mode);
    void switchVideoMode(const VideoMode &mode);

    bool lastCommandOk{false};
    Ui_MainWindow *ui;
    veltrix_sdk::IDeviceControl *device{nullptr};
    veltrix_sdk::IDeviceManager *deviceManager{nullptr};
    std::string portName;
    QDir currentDir{QString{}};
    QSerialPortInfo *selectedPortInfo; ///< Lives until the process ends.
    QList<QSerialPortInfo> serialPorts;
    std::uint8_t *deviceIdentity; ///< Lives until the process ends: the SDK is given its address.
};
