// The words of the dialog: captions from the legends at load, on a change of
// tab, and at a switch of language, also when the legend file is missing.
#include "GeneralFormFixture.h"


#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

namespace brimo::test {
namespace {

struct Caption {
    const char* control;
    int legend;
};

// Every control that takes a legend, over the six tabs.
const Caption kTabCaptions[] = {
    {"Frame7", 94}, {"Txt2", 99}, {"Txt1", 100}, {"Box2", 95}, {"Txt3", 96}, {"Txt4", 97}, {"Txt4_1", 98},
    {"Frame4", 77}, {"Frame5", 102}, {"Frame6", 101}, {"Frame9", 49},
    {"Box5", 107}, {"Label1", 105}, {"Label19", 105}, {"Check3", 108}, {"Frame2", 103}, {"Label7", 106},
    {"Label17", 104}, {"Label2", 105},
    {"Box3", 72}, {"Txt5", 82}, {"Txt6", 84}, {"Box4", 85}, {"Option4(5)", 87}, {"Option4(6)", 88},
    {"Option4(4)", 86}, {"Option4(3)", 89},
    {"Frame1", 147}, {"Etiquette1", 131}, {"Label3", 148}, {"Label4", 149}, {"Label5", 150}, {"Label8", 151},
    {"Frame8", 153}, {"Option5(0)", 154}, {"Option5(2)", 156}, {"Option5(1)", 155}, {"Option5(3)", 157},
    {"Check1", 152}, {"Check2", 158},
    {"Frame10", 159}, {"Command1", 160}, {"Command2", 161}, {"Command3", 162}, {"Command4", 163},
    {"Command6", 165}, {"Command5", 164},
};
const int kTabLegends[] = {71, 76, 72, 73, 74, 75};

// Captions that no code replaces.
const std::pair<const char*, const char*> kFixedCaptions[] = {
    {"cmdOK", "OK"}, {"Option1(0)", "mm"}, {"Option1(1)", "cm"}, {"Option2(2)", "m"}, {"Label9", "1:10"},
    {"Label14", "1:500"}, {"Txt7", "GC1"}, {"Txt14", "GC15"}, {"Txt5_1", "degrés"}, {"Command8", "variable"},
};

class GeneralCaptionsTest : public GeneralFormTest {
protected:
    // Title, tab captions and every caption table read the legends of
    // `code`, or are all empty when `code` is empty.
    void expectLegendCaptions(const QString& code) {
        const auto expected = [&](int n) { return code.isEmpty() ? QString() : legend(code, n); };
        EXPECT_EQ(form->windowTitle(), expected(48));
        auto* tabs = find<QTabWidget>("SSTab1");
        for (int tab = 0; tab < 6; ++tab) EXPECT_EQ(tabs->tabText(tab), expected(kTabLegends[tab])) << tab;
        for (const Caption& caption : kTabCaptions)
            EXPECT_EQ(captionOf(caption.control), expected(caption.legend)) << caption.control;
        for (const auto& [control, text] : kFixedCaptions) EXPECT_EQ(captionOf(control), QString::fromUtf8(text));
    }
    void expectLoadButtons(const QString& code) {
        EXPECT_EQ(captionOf("Command7"), legend(code, 52));
        EXPECT_EQ(captionOf("cmdAbout"), legend(code, 53));
        EXPECT_EQ(captionOf("CmdCancel"), legend(code, 51));
    }
    void clickOption(const char* name) {
        auto* option = find<QRadioButton>(name);
        find<QTabWidget>("SSTab1")->setCurrentIndex(4);
        QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(6, option->height() / 2));
    }
};

TEST_F(GeneralCaptionsTest, LoadWordsEveryTabFromTheLegendsAndOpensOnTheFirst) {
    open();
    expectLegendCaptions("FRA");
    expectLoadButtons("FRA");
    EXPECT_EQ(find<QTabWidget>("SSTab1")->currentIndex(), 0);
    EXPECT_EQ(QApplication::focusWidget(), find<QPushButton>("cmdOK"));
    EXPECT_EQ(legendQuestions(), 0);
}

TEST_F(GeneralCaptionsTest, AChangeOfTabWordsThatTabAgain) {
    open();
    auto* tabs = find<QTabWidget>("SSTab1");
    SetCaption(find<QWidget>("Frame1"), "changed");
    SetCaption(find<QWidget>("Frame8"), "changed");
    tabs->setCurrentIndex(3);
    EXPECT_EQ(captionOf("Frame1"), legend("FRA", 147));
    EXPECT_EQ(captionOf("Frame8"), "changed") << "only the tab that became current";
}

TEST_F(GeneralCaptionsTest, SwitchingToGermanRewordsAllTabsAndKeepsEveryValue) {
    open();
    auto* val15 = find<QLineEdit>("Val15");
    val15->setText("Mon bureau");
    clickOption("Option5(2)");

    EXPECT_EQ(services->variables.text(u"x_lang"), "DEU");
    EXPECT_EQ(find<QTabWidget>("SSTab1")->currentIndex(), 4);
    EXPECT_TRUE(find<QRadioButton>("Option5(2)")->isChecked());
    expectLegendCaptions("DEU");
    expectLoadButtons("FRA");
    EXPECT_EQ(val15->text(), "Mon bureau");
    EXPECT_EQ(find<QLineEdit>("Val6")->text(), "0.7");
    EXPECT_FALSE(prefix.exists(kLispPath));
    EXPECT_FALSE(prefix.exists(kIniPath));

    find<QPushButton>("CmdCancel")->click();
    EXPECT_EQ(ends(), QList<int>{0});
    EXPECT_FALSE(prefix.exists(kLispPath));
    EXPECT_FALSE(prefix.exists(kIniPath));
}

TEST_F(GeneralCaptionsTest, TheSwitchRunsNoRuleOfTheFieldsThatPassBy) {
    writeBrimoIni("[Brimo_Gene]\r\ncadre_usery=abc\r\nx_ht_gc1=xyz\r\n");
    open();
    clickOption("Option5(2)");
    EXPECT_TRUE(messages.isEmpty());
    EXPECT_EQ(find<QLineEdit>("Val0")->text(), "abc");
    EXPECT_EQ(QApplication::focusWidget(), find<QRadioButton>("Option5(2)"));
}

TEST_F(GeneralCaptionsTest, AFailedReloadEmptiesTheCaptionsAndAGoodOneBringsThemBack) {
    open();
    removeLegends("DEU");
    clickOption("Option5(2)");
    EXPECT_EQ(legendQuestions(), 1);
    EXPECT_EQ(services->variables.text(u"x_lang"), "DEU");
    expectLegendCaptions("");
    expectLoadButtons("FRA");

    clickOption("Option5(0)");
    EXPECT_EQ(legendQuestions(), 1);
    expectLegendCaptions("FRA");
    EXPECT_EQ(find<QTabWidget>("SSTab1")->currentIndex(), 4);
}

TEST_F(GeneralCaptionsTest, StoredGermanOpensOnTheLanguageTabInGerman) {
    writeBrimoIni("[Brimo_Gene]\r\nx_lang=DEU\r\n");
    open();
    EXPECT_EQ(find<QTabWidget>("SSTab1")->currentIndex(), 4);
    EXPECT_TRUE(find<QRadioButton>("Option5(2)")->isChecked());
    expectLegendCaptions("DEU");
    expectLoadButtons("DEU");
    EXPECT_EQ(legendQuestions(), 0);
}

TEST_F(GeneralCaptionsTest, StoredGermanWithoutItsFileAsksTwiceAndShowsNoLegend) {
    writeBrimoIni("[Brimo_Gene]\r\nx_lang=DEU\r\n");
    removeLegends("DEU");
    open();
    EXPECT_EQ(legendQuestions(), 2);
    expectLegendCaptions("");
    EXPECT_EQ(captionOf("Command7"), "");
}

TEST_F(GeneralCaptionsTest, StoredEnglishSelectsTheDisabledOption) {
    writeLegends("ENG");
    writeBrimoIni("[Brimo_Gene]\r\nx_lang=ENG\r\n");
    open();
    auto* english = find<QRadioButton>("Option5(1)");
    EXPECT_TRUE(english->isChecked());
    EXPECT_FALSE(english->isEnabled());
    EXPECT_FALSE(find<QRadioButton>("Option5(3)")->isEnabled());
    EXPECT_EQ(find<QTabWidget>("SSTab1")->currentIndex(), 4);
    expectLegendCaptions("ENG");
}

TEST_F(GeneralCaptionsTest, ReopenedFromTheChooserItKeepsTheNewLanguageAndForgetsTheEdits) {
    open();
    clickOption("Option5(2)");
    find<QLineEdit>("Val15")->setText("Mon bureau");
    find<QPushButton>("Command7")->click();
    QCoreApplication::processEvents();
    EXPECT_EQ(services->shown, QList<FormKind>{FormKind::Chooser});
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(ends().isEmpty());

    reopen();
    expectLoadButtons("DEU");
    expectLegendCaptions("DEU");
    EXPECT_EQ(find<QLineEdit>("Val15")->text(), "Nom du bureau");
}

} // namespace
} // namespace brimo::test
