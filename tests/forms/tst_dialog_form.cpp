// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The about dialog: its tree, its texts, and that it holds the operator until it is closed.

#include "dialog.h"
#include "form_fixture.h"
#include "layoutchildren.h"
#include "testclass.h"
#include "ui_dialog.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QLatin1String>
#include <QLayout>
#include <QMargins>
#include <QObject>
#include <QPushButton>
#include <QRect>
#include <QSignalSpy>
#include <QSize>
#include <QSizePolicy>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QWidget>

namespace
{

QString textOf(const QWidget &dialog, const QString &name)
{
    const auto *label = dialog.findChild<QLabel *>(name);
    return label != nullptr ? label->text() : QString::fromUtf8(noSuch<QLabel>(dialog, name));
}

} // namespace

class DialogFormTest : public QObject
{
    Q_OBJECT

private slots:
    void widgets();
    void layoutHoldsInOrder_data();
    void layoutHoldsInOrder();
    void contentsStayInPlace();
    void captionsKeepTheirSize();
    void window();
    void text_data();
    void text();
    void neverShowsThePlaceholder();
    void formAloneShowsThePlaceholder();
    void textsComeFromTheDialogContext();
    void belongsToTheParentGiven();
    void holdsTheOperatorWhileModal();
};

void DialogFormTest::widgets()
{
    const Dialog dialog;

    QStringList actual;
    for (const QWidget *widget : namedWidgets(dialog)) {
        actual << QStringLiteral("%1 %2 in %3")
                      .arg(QLatin1String{widget->metaObject()->className()}, widget->objectName(),
                           widget->parentWidget()->objectName());
    }
    QCOMPARE(difference(
                 actual,
                 {"QWidget verticalLayoutWidget in Dialog", "QLabel label_4 in verticalLayoutWidget",
                  "QLabel NomProduit in verticalLayoutWidget", "QLabel label_2 in verticalLayoutWidget",
                  "QLabel VersionProduit in verticalLayoutWidget", "QLabel label_3 in verticalLayoutWidget"}),
             QString{});
}

void DialogFormTest::layoutHoldsInOrder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("owner");
    QTest::addColumn<QStringList>("children");

    const auto row = [](const char *name, const char *className, const char *owner,
                        const QStringList &children) {
        QTest::addRow("%s is a %s in %s", name, className, owner) << name << className << owner << children;
    };
    row("verticalLayout", "QVBoxLayout", "verticalLayoutWidget",
        {"horizontalLayout_3", "horizontalLayout_2", "horizontalLayout_4"});
    row("horizontalLayout_3", "QHBoxLayout", "verticalLayout", {"label_4", "NomProduit"});
    row("horizontalLayout_2", "QHBoxLayout", "verticalLayout", {"label_2", "VersionProduit"});
    row("horizontalLayout_4", "QHBoxLayout", "verticalLayout", {"label_3"});
}

void DialogFormTest::layoutHoldsInOrder()
{
    QFETCH(QString, name);
    const Dialog dialog;

    const auto *layout = dialog.findChild<QLayout *>(name);
    QVERIFY2(layout, noSuch<QLayout>(dialog, name));
    QTEST(QString::fromLatin1(layout->metaObject()->className()), "className");
    QTEST(layout->parent()->objectName(), "owner");
    QTEST(childrenOf(*layout), "children");
}

void DialogFormTest::contentsStayInPlace()
{
    Dialog dialog;

    const auto *contents = dialog.findChild<QWidget *>("verticalLayoutWidget");
    QVERIFY2(contents, noSuch<QWidget>(dialog, "verticalLayoutWidget"));
    const QRect place{0, 0, 321, 141};
    QCOMPARE(contents->geometry(), place);
    QVERIFY(contents->layout() != nullptr);
    QCOMPARE(contents->layout()->contentsMargins(), QMargins{});

    QVERIFY(dialog.layout() == nullptr);
    dialog.show();
    dialog.resize(600, 400);
    QCoreApplication::processEvents();
    QCOMPARE(contents->geometry(), place);
}

void DialogFormTest::captionsKeepTheirSize()
{
    const Dialog dialog;

    for (const char *name : {"label_4", "label_2"}) {
        const auto *caption = dialog.findChild<QLabel *>(name);
        QVERIFY2(caption, noSuch<QLabel>(dialog, name));
        QCOMPARE(caption->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(caption->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    }
}

void DialogFormTest::window()
{
    const Dialog dialog;

    QCOMPARE(dialog.objectName(), "Dialog");
    QCOMPARE(dialog.metaObject()->superClass()->className(), "QDialog");
    QCOMPARE(dialog.size(), (QSize{324, 145}));
    QCOMPARE(dialog.windowTitle(), "About");
    QCOMPARE(dialog.windowFlags(), QDialog{}.windowFlags());
}

void DialogFormTest::text_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const char *text) {
        QTest::addRow("%s reads \"%s\"", name, text) << name << text;
    };
    row("label_4", "Nom du produit : ");
    row("NomProduit", "Pilotel Blend Unit");
    row("label_2", "Version du produit :");
    row("VersionProduit", "1.0.0");
    row("label_3", "Produit par Norvane Technologies");
}

void DialogFormTest::text()
{
    QFETCH(QString, name);

    // A second dialog must read like the first.
    for (int opening{0}; opening < 2; ++opening) {
        const Dialog dialog;
        QTEST(textOf(dialog, name), "text");
    }
}

void DialogFormTest::neverShowsThePlaceholder()
{
    const Dialog dialog;

    const auto labels = dialog.findChildren<QLabel *>();
    QCOMPARE(labels.size(), 5);
    for (const auto *label : labels) {
        QVERIFY2(label->text() != "TextLabel", qPrintable(label->objectName()));
    }
}

void DialogFormTest::formAloneShowsThePlaceholder()
{
    QDialog dialog;
    Ui_Dialog ui{};
    ui.setupUi(&dialog);

    QCOMPARE(ui.NomProduit->text(), "TextLabel");
    QCOMPARE(ui.VersionProduit->text(), "TextLabel");
}

void DialogFormTest::textsComeFromTheDialogContext()
{
    const MarkingTranslator translator;
    QDialog dialog;
    Ui_Dialog ui{};
    ui.setupUi(&dialog);

    QStringList sources;
    for (const auto &request : translator.requests) {
        QCOMPARE(request.context, "Dialog");
        sources << request.source;
    }
    QCOMPARE(difference(sources, {"About", "Nom du produit : ", "TextLabel",
                                  "Version du produit :", "TextLabel", "Produit par Norvane Technologies"}),
             QString{});
    QCOMPARE(dialog.windowTitle(), MarkingTranslator::marked("About"));
    QCOMPARE(ui.label_4->text(), MarkingTranslator::marked("Nom du produit : "));
    QCOMPARE(ui.label_2->text(), MarkingTranslator::marked("Version du produit :"));
    QCOMPARE(ui.label_3->text(), MarkingTranslator::marked("Produit par Norvane Technologies"));

    // The name and the version are set by the dialog, not by the form.
    const Dialog complete;
    QCOMPARE(textOf(complete, "NomProduit"), "Pilotel Blend Unit");
    QCOMPARE(textOf(complete, "VersionProduit"), "1.0.0");
}

void DialogFormTest::belongsToTheParentGiven()
{
    QWidget parent;
    const Dialog child{&parent};
    const Dialog alone;

    QCOMPARE(child.parentWidget(), &parent);
    QVERIFY(child.isWindow());
    QVERIFY(alone.parentWidget() == nullptr);
}

void DialogFormTest::holdsTheOperatorWhileModal()
{
    MainForm form;
    form.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form.window));
    QPushButton *const button{form.ui.AboutButton};
    const QSignalSpy clicks{button, &QPushButton::clicked};
    // Through the window system: an event handed to the widget itself would pass any modal dialog.
    const auto clickTheButton = [&form, button] {
        QTest::mouseClick(form.window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          button->mapTo(&form.window, button->rect().center()));
    };

    Dialog dialog;
    dialog.setModal(true);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(QApplication::activeModalWidget(), &dialog);
    clickTheButton();
    QCOMPARE(clicks.size(), 0);

    dialog.reject();
    clickTheButton();
    QCOMPARE(clicks.size(), 1);
}

PILOTEL_TEST_CLASS(DialogFormTest)
#include "tst_dialog_form.moc"
