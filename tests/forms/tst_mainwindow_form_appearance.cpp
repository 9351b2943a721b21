// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How the main window form looks: the pictures of the resource collection, icons, fonts and colours.

#include "form_fixture.h"
#include "testclass.h"

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QBrush>
#include <QByteArray>
#include <QColor>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QIcon>
#include <QImage>
#include <QImageReader>
#include <QLatin1String>
#include <QList>
#include <QMainWindow>
#include <QObject>
#include <QPalette>
#include <QPushButton>
#include <QSet>
#include <QSignalSpy>
#include <QSize>
#include <QSizePolicy>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <vector>

namespace
{

constexpr char material[]{":/picture/assets/icons/material/"};

QString materialIcon(const char *name)
{
    return QLatin1String{material} + QStringLiteral("%1_material.svg").arg(QLatin1String{name});
}

/// The working directory for its lifetime: an empty one, so that no file of the host's lies in it.
class EmptyWorkingDirectory
{
public:
    EmptyWorkingDirectory() { QDir::setCurrent(emptied.path()); }
    ~EmptyWorkingDirectory() { QDir::setCurrent(before); }

    EmptyWorkingDirectory(const EmptyWorkingDirectory &) = delete;
    EmptyWorkingDirectory &operator=(const EmptyWorkingDirectory &) = delete;
    EmptyWorkingDirectory(EmptyWorkingDirectory &&) = delete;
    EmptyWorkingDirectory &operator=(EmptyWorkingDirectory &&) = delete;

private:
    QString before{QDir::currentPath()};
    QTemporaryDir emptied;
};

QImage pictureOf(const QIcon &icon)
{
    return icon.pixmap(QSize{20, 20}).toImage();
}

struct FontFamily
{
    int pointSize;
    int weight;
    QStringList names;
};

constexpr int anyWeight{-1};

std::vector<FontFamily> fontFamilies()
{
    return {
        // Section titles.
        {10,
         QFont::Bold,
         {"label_33", "FusionZoomLabel", "label_34", "label_7", "label_11", "label_10", "label_58", "label_3",
          "label_4", "roiLabel", "LutLabel", "zoomLabel", "label_13", "label_14", "label_28", "label_29",
          "label_41", "label_42"}},
        // Captions beside values: warp, regions, zoom factor, temporal filter, visible channel.
        {10,
         QFont::Normal,
         {"label_35", "label_38", "label_36", "label_39", "label_37", "label_40", "label_16", "label_22",
          "label_21", "label_23", "ZoomFactorLabel", "label_24", "label_43", "label_44", "label_45",
          "label_46", "label_48"}},
        {10, QFont::Normal, {"gammaEdit", "clheEdit"}},
        {11, anyWeight, {"label"}},
        // Rows of the expert page.
        {12, QFont::Normal, {"gskEdit"}},
        {12,
         anyWeight,
         {"label_8", "gskLabel", "gfidLabel", "gmsLabel", "tintLabel", "gmsSlider", "gfidEdit", "gmsEdit",
          "tintEdit", "gainCheckBox", "BPRCheckBox", "offsetCheckBox", "verticalFlipCheckBox"}},
    };
}

bool isContainer(const QWidget &widget)
{
    return widget.metaObject() == &QWidget::staticMetaObject;
}

} // namespace

class MainWindowFormAppearanceTest : public QObject
{
    Q_OBJECT

private slots:
    void resourceIsAPicture_data();
    void resourceIsAPicture();
    void windowIconHoldsTheSizesOfTitleAndTaskBars();
    void windowShowsItsIcon();
    void buttonShowsItsIcon_data();
    void buttonShowsItsIcon();
    void noOtherButtonHasAnIcon();
    void saveButtonHasNoIconWithoutTheFile();
    void saveButtonTakesItsIconFromTheWorkingDirectory();
    void font_data();
    void font();
    void allOtherControlsUseTenPoints();
    void window();
    void scanButtonSizePolicy();
    void resolutionFieldsHaveALocaleOfTheirOwn();
    void listsAreBuiltWhenTheyAreOpened();
};

void MainWindowFormAppearanceTest::resourceIsAPicture_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("format");

    const auto row = [](const QString &path, const char *format) {
        QTest::addRow("%s holds a picture of kind %s", qPrintable(path), format)
            << path << QByteArray{format};
    };
    for (const QString name : {"write", "tool", "search", "save", "reset", "read", "connect", "disconnect",
                               "VeltrixBU", "Norvane Tech"}) {
        row(":/picture/" + name + ".png", "png");
    }
    row(":/picture/camera.ico", "ico");
    for (const char *name : {"add", "remove", "upload", "download", "reset_wrench"}) {
        row(materialIcon(name), "svg");
    }
}

void MainWindowFormAppearanceTest::resourceIsAPicture()
{
    QFETCH(QString, path);

    QVERIFY(QFile::exists(path));
    QImageReader reader{path};
    QTEST(reader.format(), "format");
    const QImage image{reader.read()};
    QVERIFY2(!image.isNull(), qPrintable(reader.errorString()));
    QVERIFY(image.width() > 0 && image.height() > 0);
}

void MainWindowFormAppearanceTest::windowIconHoldsTheSizesOfTitleAndTaskBars()
{
    QImageReader reader{":/picture/camera.ico"};
    QList<int> widths;
    for (int i{0}; i < reader.imageCount(); ++i) {
        QVERIFY(reader.jumpToImage(i));
        const QImage image{reader.read()};
        QVERIFY2(!image.isNull(), qPrintable(reader.errorString()));
        QCOMPARE(image.width(), image.height());
        widths << image.width();
    }
    QCOMPARE(widths, (QList<int>{16, 24, 32, 48, 64}));
}

void MainWindowFormAppearanceTest::windowShowsItsIcon()
{
    const MainForm form;

    const QImage expected{pictureOf(QIcon{":/picture/camera.ico"})};
    QVERIFY(!expected.isNull());
    QCOMPARE(pictureOf(form.window.windowIcon()), expected);
}

void MainWindowFormAppearanceTest::buttonShowsItsIcon_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size"); // invalid: left to the style

    const auto row = [](const char *name, const QString &path, const QSize &size) {
        QTest::addRow("%s shows %s", name, qPrintable(path)) << name << path << size;
    };
    row("scanDeviceButton", ":/picture/search.png", {20, 20});
    row("connectDeviceButton", ":/picture/connect.png", {20, 20});
    row("disconnectDeviceButton", ":/picture/disconnect.png", {20, 20});
    row("resetParamButtonUser", ":/picture/reset.png", {20, 20});
    row("readParamButtonUser", ":/picture/read.png", {19, 20});
    row("resetBPRTableButton", materialIcon("reset_wrench"), {});
    row("readBPRTableButton", materialIcon("download"), {});
    row("writeBPRTableButton", materialIcon("upload"), {});
    for (const char *name : {"addBadPixelButton", "addBadPixelLineButton", "addBadPixelColumnButton"}) {
        row(name, materialIcon("add"), {});
    }
    for (const char *name :
         {"removeBadPixelButton", "removeBadPixelLineButton", "removeBadPixelColumnButton"}) {
        row(name, materialIcon("remove"), {});
    }
}

void MainWindowFormAppearanceTest::buttonShowsItsIcon()
{
    QFETCH(QString, name);
    QFETCH(QString, path);
    QFETCH(QSize, size);
    const MainForm form;

    const auto *button = form.window.findChild<QPushButton *>(name);
    QVERIFY2(button, noSuch<QPushButton>(form.window, name));
    const QImage expected{pictureOf(QIcon{path})};
    QVERIFY(!expected.isNull());
    QCOMPARE(pictureOf(button->icon()), expected);
    if (size.isValid()) {
        QCOMPARE(button->iconSize(), size);
    }
}

void MainWindowFormAppearanceTest::noOtherButtonHasAnIcon()
{
    const EmptyWorkingDirectory empty;
    const MainForm form;

    const QStringList actual{namesWhere(form.window, [](const QWidget &widget) {
        const auto *button = qobject_cast<const QAbstractButton *>(&widget);
        return button != nullptr && !pictureOf(button->icon()).isNull();
    })};
    QCOMPARE(difference(actual, {"scanDeviceButton", "connectDeviceButton", "disconnectDeviceButton",
                                 "resetParamButtonUser", "readParamButtonUser", "resetBPRTableButton",
                                 "readBPRTableButton", "writeBPRTableButton", "addBadPixelButton",
                                 "addBadPixelLineButton", "addBadPixelColumnButton", "removeBadPixelButton",
                                 "removeBadPixelLineButton", "removeBadPixelColumnButton"}),
             QString{});
}

void MainWindowFormAppearanceTest::saveButtonHasNoIconWithoutTheFile()
{
    const EmptyWorkingDirectory empty;
    const MainForm form;

    QPushButton *const button{form.ui.saveParamButtonUser};
    QVERIFY(pictureOf(button->icon()).isNull());
    QCOMPARE(button->iconSize(), (QSize{19, 20}));

    const QSignalSpy clicks{button, &QPushButton::clicked};
    button->setEnabled(true);
    button->click();
    QCOMPARE(clicks.size(), 1);
}

void MainWindowFormAppearanceTest::saveButtonTakesItsIconFromTheWorkingDirectory()
{
    const EmptyWorkingDirectory empty;
    QVERIFY(QFile::copy(":/picture/save.png", "save.png"));
    const MainForm form;

    const QImage expected{pictureOf(QIcon{":/picture/save.png"})};
    QVERIFY(!expected.isNull());
    QCOMPARE(pictureOf(form.ui.saveParamButtonUser->icon()), expected);
}

void MainWindowFormAppearanceTest::font_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("pointSize");
    QTest::addColumn<int>("weight");

    for (const FontFamily &family : fontFamilies()) {
        for (const QString &name : family.names) {
            const char *look{family.weight == anyWeight     ? ""
                             : family.weight == QFont::Bold ? " bold"
                                                            : " normal"};
            QTest::addRow("%s is %d points%s", qPrintable(name), family.pointSize, look)
                << name << family.pointSize << family.weight;
        }
    }
}

void MainWindowFormAppearanceTest::font()
{
    QFETCH(QString, name);
    QFETCH(int, weight);
    const MainForm form;

    const auto *widget = form.window.findChild<QWidget *>(name);
    QVERIFY2(widget, noSuch<QWidget>(form.window, name));
    QTEST(widget->font().pointSize(), "pointSize");
    if (weight != anyWeight) {
        QCOMPARE(widget->font().weight(), weight);
    }
}

void MainWindowFormAppearanceTest::allOtherControlsUseTenPoints()
{
    const MainForm form;

    QSet<QString> withFontsOfTheirOwn;
    for (const FontFamily &family : fontFamilies()) {
        for (const QString &name : family.names) {
            withFontsOfTheirOwn.insert(name);
        }
    }
    const QStringList odd{namesWhere(form.window, [&withFontsOfTheirOwn](const QWidget &widget) {
        return !isContainer(widget) && !withFontsOfTheirOwn.contains(widget.objectName()) &&
               widget.font().pointSize() != 10;
    })};
    QCOMPARE(odd.join(' '), QString{});
}

void MainWindowFormAppearanceTest::window()
{
    const MainForm form;

    QCOMPARE(form.window.size(), (QSize{965, 1293}));
    QCOMPARE(form.window.dockOptions(), QMainWindow::AnimatedDocks | QMainWindow::AllowTabbedDocks);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QBrush brush{form.window.palette().brush(group, QPalette::Window)};
        QVERIFY(form.window.palette().isBrushSet(group, QPalette::Window));
        QCOMPARE(brush.style(), Qt::SolidPattern);
        QCOMPARE(brush.color(), (QColor{255, 255, 255, 255}));
    }
}

void MainWindowFormAppearanceTest::scanButtonSizePolicy()
{
    const MainForm form;

    QCOMPARE(form.ui.scanDeviceButton->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(form.ui.scanDeviceButton->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
}

void MainWindowFormAppearanceTest::resolutionFieldsHaveALocaleOfTheirOwn()
{
    const MainForm form;

    const QStringList actual{namesWhere(
        form.window, [](const QWidget &widget) { return widget.testAttribute(Qt::WA_SetLocale); })};
    for (const char *name :
         {"xResolutionZoomLabel", "xResolutionZoomEdit", "yResolutionZoomLabel", "yResolutionZoomEdit"}) {
        QVERIFY2(actual.contains(QLatin1String{name}), qPrintable(actual.join(' ')));
    }
}

void MainWindowFormAppearanceTest::listsAreBuiltWhenTheyAreOpened()
{
    MainForm form;
    QVERIFY(form.ui.selectDeviceComboBox->findChildren<QAbstractItemView *>().isEmpty());
    QVERIFY(form.ui.lutColorEdit->findChildren<QAbstractItemView *>().isEmpty());
    const QList<QComboBox *> boxes{form.window.findChildren<QComboBox *>()};
    QCOMPARE(boxes.size(), 12);
    for (QComboBox *const box : boxes) {
        QCOMPARE(box->view()->font(), box->font());
        QCOMPARE(box->view()->model()->rowCount(), box->count());
    }
}

PILOTEL_TEST_CLASS(MainWindowFormAppearanceTest)
#include "tst_mainwindow_form_appearance.moc"
