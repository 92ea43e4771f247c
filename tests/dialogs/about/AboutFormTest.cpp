// The about window: its controls, what its load step puts on it, and its
// two buttons.

#include "dialogs/about/CAboutForm.h"
#include "forms/WindowServices.h"
#include "support/FormServices.h"
#include "support/ScratchPrefix.h"

#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QtTest>

using namespace brimo;

class AboutFormTest : public QObject {
    Q_OBJECT
    std::unique_ptr<test::ScratchPrefix> prefix_;

    QString label(CAboutForm* form, const char* name) { return form->findChild<QLabel*>(name)->text(); }
    QPushButton* button(CAboutForm* form, const char* name) { return form->findChild<QPushButton*>(name); }

    // A legend file whose lines 54 and 56 carry the two legends of the window.
    void writeLegends(test::FormServices& services, const char* legend54, const char* legend56) {
        QByteArray lines;
        for (int n = 1; n <= 60; ++n) {
            const char* text = n == 54 ? legend54 : n == 56 ? legend56 : "autre";
            lines += QByteArray("L") + QByteArray::number(n).rightJustified(3, '0') + ' ' + test::cp1252(text) + "\r\n";
        }
        services.info.Zorel = QStringLiteral("C:\\Zorel");
        prefix_->write(QStringLiteral("C:\\Zorel\\Lang\\ZorelMsg_") + services.variables.text(u"x_lang") +
                           QStringLiteral(".txt"),
                       lines);
        QVERIFY(services.loadLegends() == 60);
    }

private slots:
    void init() { prefix_ = std::make_unique<test::ScratchPrefix>(); }
    void cleanup() { prefix_.reset(); }

    // The title is two bold 18-point layers, yellow below and red above.
    void titleIsTwoLayers() {
        test::FormServices services;
        CAboutForm* about = services.show(new CAboutForm(services.info, services.legends));
        auto* yellow = about->findChild<QLabel*>("txt_about(0)");
        auto* red = about->findChild<QLabel*>("txt_about(10)");
        for (QLabel* layer : {yellow, red}) {
            QCOMPARE(layer->text(), QStringLiteral("Variables Zorel"));
            QCOMPARE(layer->font().pointSize(), 18);
            QVERIFY(layer->font().bold());
            QVERIFY(!layer->autoFillBackground());
        }
        QCOMPARE(yellow->palette().color(QPalette::WindowText), QColor(Qt::yellow));
        QCOMPARE(red->palette().color(QPalette::WindowText), QColor(Qt::red));
        QVERIFY(about->children().indexOf(red) > about->children().indexOf(yellow));
    }

    void loadShowsVersions_data() {
        QTest::addColumn<QString>("serial");
        QTest::addColumn<QString>("zorelVersion");
        QTest::addColumn<QString>("acadVersion");
        QTest::addColumn<QStringList>("shown"); // txt_about(6), (8), (9)
        QTest::newRow("all missing") << "" << "" << ""
                                     << QStringList{"Numéro de série : Non saisi", "Zorel  version 2009",
                                                    "Autocad version 17.0s (Hardware Lock)"};
        QTest::newRow("serial set") << "AB 12-34" << "" << ""
                                    << QStringList{"Numéro de série : AB 12-34", "Zorel  version 2009",
                                                   "Autocad version 17.0s (Hardware Lock)"};
        QTest::newRow("all set") << "X" << "2010" << "18.0"
                                 << QStringList{"Numéro de série : X", "Zorel  version 2010", "Autocad version 18.0"};
    }
    void loadShowsVersions() {
        QFETCH(QString, serial);
        QFETCH(QString, zorelVersion);
        QFETCH(QString, acadVersion);
        QFETCH(QStringList, shown);
        test::FormServices services;
        services.info.No_serie_acad = serial;
        services.info.No_version_Zorel = zorelVersion;
        services.info.No_version_acad = acadVersion;
        CAboutForm* about = services.show(new CAboutForm(services.info, services.legends));
        const char* labels[] = {"txt_about(6)", "txt_about(8)", "txt_about(9)"};
        for (int i = 0; i < 3; ++i) {
            auto* composed = about->findChild<QLabel*>(labels[i]);
            QCOMPARE(composed->text(), shown[i]);
            QVERIFY2(composed->sizeHint().width() <= composed->width(), labels[i]);
        }
        // The display defaults stay in the installation settings.
        QCOMPARE(services.info.No_serie_acad, shown[0].mid(18));
        QCOMPARE(services.info.No_version_Zorel, shown[1].mid(15));
        QCOMPARE(services.info.No_version_acad, shown[2].mid(16));
    }

    void loadTakesLegends_data() {
        QTest::addColumn<QByteArray>("legend54");
        QTest::addColumn<QByteArray>("legend56");
        QTest::newRow("French") << QByteArray("Info système") << QByteArray("Ce produit a été développé par");
        QTest::newRow("English") << QByteArray("System info") << QByteArray("This product was developed by");
    }
    void loadTakesLegends() {
        QFETCH(QByteArray, legend54);
        QFETCH(QByteArray, legend56);
        test::FormServices services;
        writeLegends(services, legend54.constData(), legend56.constData());
        CAboutForm* about = services.show(new CAboutForm(services.info, services.legends));
        QCOMPARE(button(about, "Command1")->text(), QString::fromUtf8(legend54));
        QCOMPARE(label(about, "txt_about(4)"), QString::fromUtf8(legend56));
        QCOMPARE(label(about, "txt_about(8)"), QStringLiteral("Zorel  version 2009"));
        QCOMPARE(button(about, "cmdOK")->text(), QStringLiteral("OK"));
    }

    // The tool is looked for at its one fixed path, names matched without
    // regard to case as Windows does.
    void systemInfoButtonNeedsTheTool_data() {
        QTest::addColumn<QString>("toolFile"); // empty: no tool
        QTest::addColumn<bool>("enabled");
        QTest::newRow("no tool") << "" << false;
        QTest::newRow("tool") << "C:\\Program Files\\Fichiers Communs\\Microsoft Shared\\MSinfo\\Msinfo32.exe" << true;
        QTest::newRow("tool, other case") << "C:\\program files\\fichiers communs\\microsoft shared\\msinfo\\MSINFO32.EXE"
                                          << true;
        QTest::newRow("tool of an English system")
            << "C:\\Program Files\\Common Files\\Microsoft Shared\\MSInfo\\msinfo32.exe" << false;
    }
    void systemInfoButtonNeedsTheTool() {
        QFETCH(QString, toolFile);
        QFETCH(bool, enabled);
        if (!toolFile.isEmpty()) prefix_->write(toolFile, "MZ");
        test::FormServices services;
        CAboutForm* about = services.show(new CAboutForm(services.info, services.legends));
        QCOMPARE(button(about, "Command1")->isEnabled(), enabled);
    }

    void okIsDefaultHoldsFocusAndCloses() {
        test::FormServices services;
        CAboutForm* about = services.show(new CAboutForm(services.info, services.legends));
        QVERIFY(QTest::qWaitForWindowActive(about));
        QCOMPARE(QApplication::focusWidget(), button(about, "cmdOK"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), button(about, "cmdOK")); // Command1 is disabled
        QTest::keyClick(about, Qt::Key_Return);
        QVERIFY(!about->isVisible());
    }
};

QTEST_MAIN(AboutFormTest)
#include "AboutFormTest.moc"
