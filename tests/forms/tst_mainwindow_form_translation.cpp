// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The main window form's text pass: every text can be translated, and nothing else changes with it.

#include "form_fixture.h"
#include "form_texts.h"
#include "testclass.h"

#include <QComboBox>
#include <QLabel>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTabWidget>
#include <QTest>
#include <QVariant>
#include <QWidget>

namespace
{

QStringList marked(const QStringList &sources)
{
    QStringList all;
    for (const QString &source : sources) {
        all << MarkingTranslator::marked(source);
    }
    return all;
}

/// Everything about the controls that a change of language must leave alone.
QStringList stateOf(const QWidget &root)
{
    QStringList facts;
    for (const QWidget *widget : namedWidgets(root)) {
        for (const char *property : {"minimum", "maximum", "value", "checked", "currentIndex", "count"}) {
            const QVariant value{widget->property(property)};
            if (value.isValid()) {
                facts << QStringLiteral("%1 %2 %3").arg(widget->objectName(), property, value.toString());
            }
        }
        const bool enabled{widget->isEnabledTo(widget->parentWidget())};
        facts << widget->objectName() + (enabled ? " enabled" : " disabled");
    }
    return facts;
}

} // namespace

class MainWindowFormTranslationTest : public QObject
{
    Q_OBJECT

private slots:
    void translatesInTheWindowsContext();
    void translatedTextsReachTheirObjects();
    void translatedItemsAndTitlesReachTheirWidgets();
    void setsTextsInOrder();
    void leavesStateAlone();
    void resetsCurrentTexts();
};

void MainWindowFormTranslationTest::translatesInTheWindowsContext()
{
    MainForm form;
    const MarkingTranslator translator;

    form.retranslate();
    QVERIFY(!translator.requests.empty());
    for (const auto &request : translator.requests) {
        QVERIFY2(request.context == "MainWindow", qPrintable(request.context + ": " + request.source));
    }
}

void MainWindowFormTranslationTest::translatedTextsReachTheirObjects()
{
    const MarkingTranslator translator;
    const MainForm form;

    QCOMPARE(form.window.windowTitle(), MarkingTranslator::marked("Veltrix BU Pilotel"));
    for (const Texts &text : texts()) {
        const auto *widget = form.window.findChild<QWidget *>(text.object);
        QVERIFY2(widget, noSuch<QWidget>(form.window, text.object));
        if (text.caption != nullptr) {
            QCOMPARE(widget->property("text").toString(), MarkingTranslator::marked(text.caption));
        }
        if (!text.tooltip.isEmpty()) {
            QVERIFY2(widget->toolTip().startsWith(MarkingTranslator::mark), text.object);
        }
    }
    for (const QLabel *logo : {form.ui.BULogo, form.ui.NTLogo}) {
        QVERIFY2(logo->text().startsWith(MarkingTranslator::mark), qPrintable(logo->text()));
    }
    QVERIFY(form.ui.NTLogo->toolTip().startsWith(MarkingTranslator::mark));
    QCOMPARE(form.ui.BULogo->toolTip(), QString{});
}

void MainWindowFormTranslationTest::translatedItemsAndTitlesReachTheirWidgets()
{
    const MarkingTranslator translator;
    const MainForm form;

    for (const Choices &choice : choices()) {
        const auto *comboBox = form.window.findChild<QComboBox *>(choice.comboBox);
        QVERIFY2(comboBox, noSuch<QComboBox>(form.window, choice.comboBox));
        QCOMPARE(itemsOf(*comboBox), marked(choice.items));
    }
    for (const Titles &row : titles()) {
        const auto *tabs = form.window.findChild<QTabWidget *>(row.tabWidget);
        QVERIFY2(tabs, noSuch<QTabWidget>(form.window, row.tabWidget));
        QCOMPARE(titlesOf(*tabs), marked(row.titles));
    }
    QCOMPARE(form.ui.BaudRateCB->currentText(), MarkingTranslator::marked("115200"));
}

void MainWindowFormTranslationTest::setsTextsInOrder()
{
    MainForm form;
    const MarkingTranslator translator;
    form.retranslate();

    QStringList expected{"Veltrix BU Pilotel"};
    for (const Texts &text : texts()) {
        if (!text.tooltip.isEmpty()) {
            expected << text.tooltip.join('\n');
        }
        if (text.caption != nullptr) {
            expected << text.caption;
        }
    }
    const auto asRead = [](const QString &source) {
        return Qt::mightBeRichText(source) ? paragraphsOf(source).join('\n') : source;
    };
    // Items and tab titles stand between them, so each text is looked for after the one before it.
    auto position = translator.requests.cbegin();
    for (int i{0}; i < expected.size(); ++i) {
        while (position != translator.requests.cend() && asRead(position->source) != expected[i]) {
            ++position;
        }
        const QString complaint{QStringLiteral("\"%1\" does not follow \"%2\"")};
        QVERIFY2(position != translator.requests.cend(),
                 qPrintable(complaint.arg(expected[i], expected.value(i - 1))));
        ++position;
    }
}

void MainWindowFormTranslationTest::leavesStateAlone()
{
    MainForm form;
    form.ui.paramSection->setEnabled(true);
    form.ui.gammaEdit->setMaximum(2.0);
    form.ui.gammaEdit->setValue(1.7);
    form.ui.gskSlider->setValue(7);
    form.ui.roi1IncEnable->setChecked(true);
    form.ui.VideoOutputCB->setCurrentIndex(4);
    form.ui.Principal_tab->setCurrentIndex(1);

    const QStringList before{stateOf(form.window)};
    form.retranslate();
    QCOMPARE(difference(stateOf(form.window), before), QString{});
}

void MainWindowFormTranslationTest::resetsCurrentTexts()
{
    MainForm form;
    form.ui.BaudRateCB->setCurrentIndex(4);

    form.retranslate();
    QCOMPARE(form.ui.BaudRateCB->currentText(), "115200");
    QCOMPARE(form.ui.selectDeviceComboBox->currentText(), QString{});
}

PILOTEL_TEST_CLASS(MainWindowFormTranslationTest)
#include "tst_mainwindow_form_translation.moc"
