// The about window beyond its snapshot: the two layers of the title, the
// versions its load step composes, the system information button that needs
// its tool, and OK.

#include "dialogs/about/CAboutForm.h"
#include "support/FormServices.h"
#include "support/ScratchPrefix.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

using namespace brimo;

class AboutFormTest : public QObject {
    Q_OBJECT
    std::unique_ptr<test::ScratchPrefix> prefix_;
    std::unique_ptr<test::FormServices> services_;

    CAboutForm* open() { return services_->show(new CAboutForm(services_->info, services_->legends)); }
    template <class W = QLabel> W* control(CAboutForm* about, const char* name) { return about->findChild<W*>(name); }

private slots:
    void init() {
        prefix_ = std::make_unique<test::ScratchPrefix>();
        services_ = std::make_unique<test::FormServices>();
    }
    void cleanup() {
        services_.reset();
        prefix_.reset();
    }

    // The title is two bold 18-point layers, yellow below and red above.
    void titleIsTwoLayers() {
        CAboutForm* about = open();
        auto* yellow = control(about, "txt_about(0)");
        auto* red = control(about, "txt_about(10)");
        for (QLabel* layer : {yellow, red}) {
            QCOMPARE(layer->text(), QStringLiteral("Variables Zorel"));
            QCOMPARE(layer->font().pointSize(), 18);
            QVERIFY(layer->font().bold() && !layer->autoFillBackground());
        }
        QCOMPARE(yellow->palette().color(QPalette::WindowText), QColor(Qt::yellow));
        QCOMPARE(red->palette().color(QPalette::WindowText), QColor(Qt::red));
        QVERIFY(about->children().indexOf(red) > about->children().indexOf(yellow));
    }

    // Missing versions show their defaults, which stay in the installation settings.
    void loadShowsVersions_data() {
        QTest::addColumn<QStringList>("stored"); // serial, Zorel version, AutoCAD version
        QTest::addColumn<QStringList>("shown");  // txt_about(6), (8), (9)
        const QStringList defaults{"Numéro de série : Non saisi", "Zorel  version 2009", "Autocad version 17.0s (Hardware Lock)"};
        QTest::newRow("all missing") << QStringList{"", "", ""} << defaults;
        QTest::newRow("serial set") << QStringList{"AB 12-34", "", ""}
                                    << QStringList{"Numéro de série : AB 12-34", defaults[1], defaults[2]};
        QTest::newRow("all set") << QStringList{"X", "2010", "18.0"}
                                 << QStringList{"Numéro de série : X", "Zorel  version 2010", "Autocad version 18.0"};
    }
    void loadShowsVersions() {
        QFETCH(QStringList, stored);
        QFETCH(QStringList, shown);
        InstallInfo& info = services_->info;
        QString* values[] = {&info.No_serie_acad, &info.No_version_Zorel, &info.No_version_acad};
        for (int i = 0; i < 3; ++i) *values[i] = stored[i];
        CAboutForm* about = open();
        const char* labels[] = {"txt_about(6)", "txt_about(8)", "txt_about(9)"};
        const int prefixes[] = {18, 15, 16};
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(control(about, labels[i])->text(), shown[i]);
            QVERIFY2(control(about, labels[i])->sizeHint().width() <= control(about, labels[i])->width(), labels[i]);
            QCOMPARE(*values[i], shown[i].mid(prefixes[i]));
        }
    }

    // The tool is looked for at its one fixed path, names matched without
    // regard to case as Windows does.
    void systemInfoButtonNeedsTheTool_data() {
        QTest::addColumn<QString>("toolFile"); // empty: no tool
        QTest::addColumn<bool>("enabled");
        QTest::newRow("no tool") << "" << false;
        QTest::newRow("tool") << "C:\\Program Files\\Fichiers Communs\\Microsoft Shared\\MSinfo\\Msinfo32.exe" << true;
        QTest::newRow("other case") << "C:\\program files\\fichiers communs\\microsoft shared\\msinfo\\MSINFO32.EXE" << true;
        QTest::newRow("English system") << "C:\\Program Files\\Common Files\\Microsoft Shared\\MSInfo\\msinfo32.exe" << false;
    }
    void systemInfoButtonNeedsTheTool() {
        QFETCH(QString, toolFile);
        QFETCH(bool, enabled);
        if (!toolFile.isEmpty()) prefix_->write(toolFile, "MZ");
        QCOMPARE(control<QPushButton>(open(), "Command1")->isEnabled(), enabled);
    }

    void okHoldsTheFocusAndReturnCloses() {
        CAboutForm* about = open();
        QVERIFY(QTest::qWaitForWindowActive(about));
        QCOMPARE(QApplication::focusWidget(), control<QPushButton>(about, "cmdOK"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), control<QPushButton>(about, "cmdOK")); // Command1 is disabled
        QTest::keyClick(about, Qt::Key_Return);
        QVERIFY(!about->isVisible());
    }
};

QTEST_MAIN(AboutFormTest)
#include "AboutFormTest.moc"
