// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The program's only window: every handler of the operator's actions and the state of the session.
#pragma once

#include <QDir>
#include <QElapsedTimer>
#include <QList>
#include <QMainWindow>
#include <QSerialPortInfo>
#include <QString>
#include <QWidget>
#include <QtGlobal>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>

class Ui_MainWindow;

namespace veltrix_sdk
{
class IDeviceControl;
class IDeviceManager;
class ISdkConfiguration;
struct FirmwareVersions;
} // namespace veltrix_sdk

enum class Region;
enum class SequencePlace;
struct BprTransfer;
struct PixelDeclaration;
struct RegionCoordinate;
struct SliderPair;
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

    /// Told the first moment (true) and the last one (false) of each sequence of commands, such as a read.
    /// Between them no event is processed, except those of a box that the sequence shows. It must not throw.
    using SequenceObserver = std::function<void(bool running)>;
    void setSequenceObserver(SequenceObserver observer) { sequenceObserver = std::move(observer); }

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

    // Sliders and their spin boxes. The slips in AhcBlackGainlimSliderChanged, AhcWhiteGainlimSliderChanged
    // and gfiSendCommand stay: scripts invoke slots by their names.
    void GammaUserSliderChanged(int position);
    void GammaUserValueChanged(double value);
    void gammaUserSendCommand();
    void ClheUserSliderChanged(int position);
    void ClheUserValueChanged(double value);
    void clheSendCommand();
    void SharpeningUserSliderChanged(int position);
    void SharpeningUserValueChanged(double value);
    void SharpeningTHSliderChanged(int position);
    void SharpeningTHValueChanged(double value);
    void sharpeningSendCommand();
    void AhcBlackGainlimSliderChanged(int position);
    void AhcBlackGainLimSpinValueChanged(int value);
    void AhcWhiteGainlimSliderChanged(int position);
    void AhcWhiteGainLimSpinValueChanged(int value);
    void ahcGainSendCommand();
    void TempoFilterSliderChanged(int position);
    void TempoFiltSpinValueChanged(int value);
    void tempoFilterSendCommand();
    void GSKExpertSliderChanged(int position);
    void GSKExpertValueChanged(double value);
    void gskSendCommand();
    void GFIDExpertSliderChanged(int position);
    void GFIDExpertValueChanged(double value);
    void gfiSendCommand();
    void GMSExpertSliderChanged(int position);
    void GMSExpertValueChanged(double value);
    void gmsSendCommand();
    void TINTExpertSliderChanged(int position);
    void TINTExpertValueChanged(double value);
    void tintSendCommand();

    // Camera parameters
    bool readCameraParameters();
    void videoOutputChanged();
    void frameRateChanged();
    void contrastTypeChanged();
    void colorLutChanged();
    void edgeCorrectionChanged();
    void columnCorrectionClicked();
    void vignettingCorrectionClicked();
    void sdiOutputClicked();
    void parallelOutputClicked();
    void mipiOutputClicked();
    void polarityClicked();
    void horizontalFlipClicked();
    void ApplyParamsUser();
    void ResetParamsUser();

    // Expert parameters
    void ReadKrParamsExpert();
    void ApplyParamsExpert();
    void bprControlChanged();
    void offsetControlChanged();
    void gainControlChanged();
    void krBaudRateChanged();
    void changePermanentButtonText();
    void ApplyNucRequest();

    // Regions of interest
    void x1RoiUserValueChanged(int roiNumber);
    void x2RoiUserValueChanged(int roiNumber);
    void y1RoiUserValueChanged(int roiNumber);
    void y2RoiUserValueChanged(int roiNumber);
    void roi1IncCheck();
    void roi0ExcCheck();
    void roi1ExcCheck();

    // Bad pixels
    void readBprTableClicked();
    void writeBprTableClicked();
    void addBadPixelClicked();
    void addBadPixelLineClicked();
    void addBadPixelColumnClicked();
    void removeBadPixelClicked();
    void removeBadPixelLineClicked();
    void removeBadPixelColumnClicked();

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
    void wireRegions();
    void wireZoomFactor();
    void wireFinishedEdits();
    void wireButtons();
    void wireCheckBoxes();
    void wireComboBoxes();
    void wireVisibleChannel();
    void removeWhatDoesNotApply(bool expertMode);

    // Operation log
    class Sequence;
    /// Paints what a sequence has logged so far, unless it was painted a moment ago.
    void paintLog();
    void reportCommand(bool ok, const char *action);
    /// Gives the open device a command and reports it; does nothing while no device is open.
    template <typename... Parameters, typename... Arguments>
    void sendCommand(const char *action, bool (veltrix_sdk::IDeviceControl::*command)(Parameters...),
                     Arguments... arguments)
    {
        if (isDeviceOpen()) {
            reportCommand((device->*command)(arguments...), action);
        }
    }
    void reportOutcome(bool ok, const char *success, const char *failure);

    // Connection
    /// Fetched afresh at each use: the SDK may replace it.
    static veltrix_sdk::ISdkConfiguration &sdkConfiguration();
    /// The last call of an apply and of a change of the MAVLink rate. Nobody uses its result; it stays
    /// because the SDK sees it.
    static void closeApply();
    bool isDeviceOpen() const;
    void returnDevice();
    void commitPendingEdit();
    void setConnectedControls(bool connected);
    void showNotConnectedBox();
    /// Shows the not-connected box when no device is open, and says so.
    bool tellNotConnected();

    // Sliders and their spin boxes
    /// Moves the slider to its box's new value. While the box is being typed into, its text is left alone.
    void spinBoxChanged(const SliderPair &pair, double value);
    /// Shows the slider's new position in its box, or remembers that while the box is being typed into.
    void sliderChanged(const SliderPair &pair, int position);
    /// Shows in the box that was typed into what its slider stands at: the end of its edit, before it is
    /// sent.
    void pullBackTyped();
    void sendNumber(const SliderPair &pair);
    void sendNumbers(SequencePlace place);
    void readNumbers(SequencePlace place);
    void resetNumber(const SliderPair &pair, veltrix_sdk::ISdkConfiguration &defaults);
    void resetNumbers(SequencePlace place, veltrix_sdk::ISdkConfiguration &defaults);

    // Camera parameters
    /// Asks the unit for its versions and starts its reading. When the unit does not answer, a box and a line
    /// say so, and the result is empty.
    std::optional<veltrix_sdk::FirmwareVersions> startReadingUnit();
    void readIdentity();
    void readToggle(const ToggleSetting &setting);
    void readOutputs();
    void readFlipAndPolarity();
    void readRegions();
    void readLut();
    void readEdgeCorrection();

    void sendToggle(const ToggleSetting &setting);
    void resetRegions(veltrix_sdk::ISdkConfiguration &defaults);

    // Regions of interest
    void enableRegion(Region region);
    void finishRegionEdit(int roiNumber, const RegionCoordinate &coordinate);
    bool sendRegionCoordinate(const RegionCoordinate &coordinate, int pixels, int roiNumber);

    // Bad pixels
    void transferBprTable(const BprTransfer &transfer);
    void declareSingle(const PixelDeclaration &declaration);
    void declareLine(const PixelDeclaration &declaration);
    void declareColumn(const PixelDeclaration &declaration);
    void declarePixel(const PixelDeclaration &declaration, std::uint32_t column, std::uint32_t row);

    // Blend Unit
    void showVideoMode(const VideoMode &mode);
    void switchVideoMode(const VideoMode &mode);

    bool lastCommandOk{false};
    Ui_MainWindow *ui;
    veltrix_sdk::IDeviceControl *device{nullptr};
    veltrix_sdk::IDeviceManager *deviceManager{nullptr};
    std::string portName;
    // Nobody reads these two; they stay as a part of the state that the window has always had.
    QDir currentDir{QString{}};
    QSerialPortInfo *selectedPortInfo; ///< Lives until the process ends.
    QList<QSerialPortInfo> serialPorts;
    std::uint8_t *deviceIdentity; ///< Lives until the process ends: the SDK is given its address.
    SequenceObserver sequenceObserver;
    int sequenceDepth{0};          ///< Of sequences that run inside one another.
    QElapsedTimer sinceLogPainted; ///< Or since the sequence has begun.
    /// What the first painting of a sequence may take, in nanoseconds.
    static constexpr qint64 supposedLogPaintingTime{1'000'000};
    /// Of the latest painting in this sequence.
    qint64 logPaintingTime{supposedLogPaintingTime};
    const SliderPair *typedPair{nullptr};   ///< While its slider follows a key typed into its box.
    const SliderPair *waitingPair{nullptr}; ///< What was typed into its box is not what its slider stands at.
    bool regionBoxOpen{false}; ///< While the box about the order of a region's coordinates is shown.
};
