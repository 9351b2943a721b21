// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The main window form's texts: captions, tooltips, items, tab titles and logos.

#include "form_fixture.h"
#include "form_texts.h"
#include "testclass.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTabWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextDocument>
#include <QTextFragment>
#include <QWidget>

#include <cstddef>
#include <vector>

namespace
{

bool isCaptioned(const QWidget &widget)
{
    return widget.inherits("QLabel") || widget.inherits("QAbstractButton");
}

/// The formats of a document's fragments, in reading order.
std::vector<QTextFragment> fragmentsOf(const QTextDocument &document)
{
    std::vector<QTextFragment> fragments;
    for (QTextBlock block{document.begin()}; block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            fragments.push_back(part.fragment());
        }
    }
    return fragments;
}

} // namespace

class MainWindowFormTextsTest : public QObject
{
    Q_OBJECT

private slots:
    void windowTitle();
    void caption_data();
    void caption();
    void everyLabelAndButtonHasItsCaption();
    void tooltip_data();
    void tooltip();
    void noOtherTooltips();
    void items_data();
    void items();
    void everyComboBoxHasItsItems();
    void tabTitles_data();
    void tabTitles();
    void logoShowsItsPicture_data();
    void logoShowsItsPicture();
    void makersLogoLinksToTheMaker();
    void sharedTooltipsAreTheSame();
};

void MainWindowFormTextsTest::windowTitle()
{
    const MainForm form;

    QCOMPARE(form.window.windowTitle(), "Veltrix BU Pilotel");
}

void MainWindowFormTextsTest::caption_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("caption");

    for (const Texts &text : texts()) {
        if (text.caption != nullptr) {
            QTest::addRow("%s reads \"%s\"", text.object, text.caption) << text.object << text.caption;
        }
    }
}

void MainWindowFormTextsTest::caption()
{
    QFETCH(QString, name);
    const MainForm form;

    const auto *widget = form.window.findChild<QWidget *>(name);
    QVERIFY2(widget, noSuch<QWidget>(form.window, name));
    QTEST(widget->property("text").toString(), "caption");
}

void MainWindowFormTextsTest::everyLabelAndButtonHasItsCaption()
{
    const MainForm form;

    QStringList expected{"BULogo", "NTLogo"};
    for (const Texts &text : texts()) {
        if (text.caption != nullptr) {
            expected << text.object;
        }
    }
    QCOMPARE(difference(namesWhere(form.window, isCaptioned), expected), QString{});
}

void MainWindowFormTextsTest::tooltip_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("paragraphs");

    for (const Texts &text : texts()) {
        if (!text.tooltip.isEmpty()) {
            QTest::addRow("%s explains itself", text.object) << text.object << text.tooltip;
        }
    }
}

void MainWindowFormTextsTest::tooltip()
{
    QFETCH(QString, name);
    QFETCH(QStringList, paragraphs);
    const MainForm form;

    const auto *widget = form.window.findChild<QWidget *>(name);
    QVERIFY2(widget, noSuch<QWidget>(form.window, name));
    const QString source{widget->toolTip()};
    QCOMPARE(paragraphsOf(source), paragraphs);
    QVERIFY2(source.contains("<html") && source.contains("<body"), qPrintable(source));
    QCOMPARE(source.count("</p>"), paragraphs.size());
}

void MainWindowFormTextsTest::noOtherTooltips()
{
    const MainForm form;

    QStringList expected{"NTLogo"};
    for (const Texts &text : texts()) {
        if (!text.tooltip.isEmpty()) {
            expected << text.object;
        }
    }
    const QStringList actual{
        namesWhere(form.window, [](const QWidget &widget) { return !widget.toolTip().isEmpty(); })};
    QCOMPARE(difference(actual, expected), QString{});
    QVERIFY(form.window.toolTip().isEmpty());
}

void MainWindowFormTextsTest::items_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("items");

    for (const Choices &choice : choices()) {
        QTest::addRow("%s offers %d items", choice.comboBox, choice.items.size())
            << choice.comboBox << choice.items;
    }
}

void MainWindowFormTextsTest::items()
{
    QFETCH(QString, name);
    const MainForm form;

    const auto *comboBox = form.window.findChild<QComboBox *>(name);
    QVERIFY2(comboBox, noSuch<QComboBox>(form.window, name));
    QTEST(itemsOf(*comboBox), "items");
}

void MainWindowFormTextsTest::everyComboBoxHasItsItems()
{
    const MainForm form;

    QStringList expected;
    for (const Choices &choice : choices()) {
        expected << choice.comboBox;
    }
    const QStringList actual{
        namesWhere(form.window, [](const QWidget &widget) { return widget.inherits("QComboBox"); })};
    QCOMPARE(difference(actual, expected), QString{});
}

void MainWindowFormTextsTest::tabTitles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("titles");

    for (const Titles &row : titles()) {
        QTest::addRow("%s: %s", row.tabWidget, qPrintable(row.titles.join(", ")))
            << row.tabWidget << row.titles;
    }
}

void MainWindowFormTextsTest::tabTitles()
{
    QFETCH(QString, name);
    const MainForm form;

    const auto *tabs = form.window.findChild<QTabWidget *>(name);
    QVERIFY2(tabs, noSuch<QTabWidget>(form.window, name));
    QTEST(titlesOf(*tabs), "titles");
}

void MainWindowFormTextsTest::logoShowsItsPicture_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("picture");

    QTest::addRow("BULogo shows the Blend Unit") << "BULogo"
                                                 << ":picture/VeltrixBU.png";
    QTest::addRow("NTLogo shows the maker's logo") << "NTLogo"
                                                   << ":picture/Norvane Tech.png";
}

void MainWindowFormTextsTest::logoShowsItsPicture()
{
    QFETCH(QString, name);
    QFETCH(QString, picture);
    const MainForm form;

    const auto *logo = form.window.findChild<QLabel *>(name);
    QVERIFY2(logo, noSuch<QLabel>(form.window, name));
    QVERIFY(logo->textFormat() == Qt::RichText || Qt::mightBeRichText(logo->text()));
    QTextDocument document;
    document.setHtml(logo->text());
    QCOMPARE(document.blockCount(), 1);
    const auto fragments = fragmentsOf(document);
    QCOMPARE(fragments.size(), std::size_t{1});
    QVERIFY(fragments.front().charFormat().isImageFormat());
    QCOMPARE(fragments.front().charFormat().toImageFormat().name(), picture);
    QVERIFY(QFile::exists(picture));
}

void MainWindowFormTextsTest::makersLogoLinksToTheMaker()
{
    const MainForm form;

    QTextDocument document;
    document.setHtml(form.ui.NTLogo->toolTip());
    QCOMPARE(document.blockCount(), 1);
    const auto fragments = fragmentsOf(document);
    QCOMPARE(fragments.size(), std::size_t{1});
    const QTextCharFormat format{fragments.front().charFormat()};
    QCOMPARE(fragments.front().text(), "Norvane Technologies");
    QCOMPARE(format.anchorHref(), "https://www.norvane-technologies.example/");
    QVERIFY(format.fontUnderline());
    QCOMPARE(format.foreground().color().name(), "#0000ff");
}

void MainWindowFormTextsTest::sharedTooltipsAreTheSame()
{
    const MainForm form;

    QCOMPARE(form.ui.gskLabel->toolTip(), form.ui.gammaLabel->toolTip());
    QCOMPARE(form.ui.gmsLabel->toolTip(), form.ui.sharpeningGainLabel->toolTip());
    QCOMPARE(form.ui.tintLabel->toolTip(), form.ui.sharpeningGainLabel->toolTip());
    QVERIFY(form.ui.gfidLabel->toolTip() != form.ui.gskLabel->toolTip());
}

PILOTEL_TEST_CLASS(MainWindowFormTextsTest)
#include "tst_mainwindow_form_texts.moc"
