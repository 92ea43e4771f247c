#include "GeneralFormFixture.h"

#include "support/FormDump.h"
#include "support/Golden.h"

#include <QFile>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTest>

namespace brimo::test {

void GeneralFormTest::SetUp() {
    messages.clear();
    prefix.writeZorelIni(QStringLiteral("C:\\Zorel"), QStringLiteral("C:\\Zorel\\Var"), QStringLiteral("jo"));
    prefix.makeFolder(QStringLiteral("C:\\Zorel\\Var\\jo"));
    writeLegends(QStringLiteral("FRA"));
    writeLegends(QStringLiteral("DEU"));
    services = std::make_unique<FormServices>();
}

void GeneralFormTest::TearDown() {
    services.reset();
}

void GeneralFormTest::writeLegends(const QString& code, const QMap<int, QString>& texts) {
    QString file;
    for (int n = 1; n <= 174; ++n) file += QStringLiteral("0000 ") + texts.value(n, legend(code, n)) + QStringLiteral("\r\n");
    prefix.write(QStringLiteral("C:\\Zorel\\Lang\\ZorelMsg_%1.txt").arg(code), file.toLatin1());
}

void GeneralFormTest::removeLegends(const QString& code) {
    QFile::remove(prefix.native(QStringLiteral("C:\\Zorel\\Lang\\ZorelMsg_%1.txt").arg(code)));
}

CGeneralForm* GeneralFormTest::open() {
    services->load();
    return reopen();
}

CGeneralForm* GeneralFormTest::reopen() {
    auto* general = new CGeneralForm(*services, services->info, services->variables, services->variables, services->legends, *services);
    general->messageBoxes().setAnswerer([this](const MessageBoxCall& call) {
        messages.append(call);
        return false;
    });
    form = services->show(general);
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form));
    return form;
}

// The legend captions of a dump, by control: "FRA 94" and the like.
static QMap<QString, QStringList> legendCaptions(const QByteArray& dump) {
    static const QRegularExpression legend(QStringLiteral("\"([A-Z]{3} \\d+)?\""));
    QMap<QString, QStringList> captions;
    for (const QString& line : QString::fromUtf8(dump).split(QLatin1Char('\n')))
        for (auto m = legend.globalMatch(line); m.hasNext();) captions[line.section(QLatin1Char(' '), 0, 0)] << m.next().captured(1);
    return captions;
}

void GeneralFormTest::expectLegendCaptions(const QString& code, const QString& loadButtons) {
    const QMap<QString, QStringList> expected = legendCaptions(Golden(QStringLiteral("forms/general.txt")));
    const QMap<QString, QStringList> actual = legendCaptions(DumpForm(form));
    for (auto it = expected.begin(); it != expected.end(); ++it)
        for (qsizetype i = 0; i < it->size(); ++i) {
            const QString n = it->at(i).section(QLatin1Char(' '), 1);
            const QString& language = (n == "51" || n == "52" || n == "53") ? loadButtons : code;
            const QString want = n.isEmpty() || language.isEmpty() ? QString() : legend(language, n.toInt());
            EXPECT_EQ(actual.value(it.key()).value(i), want) << it.key().toStdString();
        }
}

void GeneralFormTest::clickOption(const char* name) {
    auto* option = find<QRadioButton>(name);
    find<QTabWidget>("SSTab1")->setCurrentIndex(4);
    QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(6, option->height() / 2));
}

} // namespace brimo::test
