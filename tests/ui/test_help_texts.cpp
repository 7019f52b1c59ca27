// The help boxes of the forms, word for word in three languages.
#include <map>
#include <string>
#include <vector>

#include "AllForms.h"
#include "FormTest.h"

namespace lithmark::tests {
namespace {

struct HelpCase {
    std::vector<std::string> German, English, Arabic;
    const char* End = "";  // behind the last line
};

std::string Joined(const std::vector<std::string>& lines, const std::string& end) {
    std::string text;
    for (const std::string& line : lines) text += (text.empty() ? "" : "\r") + line;
    return text + end;
}

const std::map<std::string, HelpCase>& Cases() {
    static const std::map<std::string, HelpCase> cases = {
        {"frmResultTools",
         {{"Mit dem Menü können die Daten und Ergebnisse aufgelistet",
           "werden, an den Drucker, Excel, Word and Zwischenablage",
           "ausgegeben werden oder in VERDA-Text angezeigt werden.", "Setzungen und Sohldrücke der Platte können als",
           "Isolinien gezeichnet werden."},
          {"In the menu, data and results can be listed or sent", "to printer, Excel, Word, Clipboard and",
           "VERDA-Text. Settlements and contact pressures", "of rafts can be displayed as contour lines."},
          {"في هذه القائمة يمكن عرض المعطيات والنتائج أو إرسالها", "إلى الطابعة وإكسل وورد والحافظة وفيردا تكست.",
           "ويمكن رسم هبوط البلاطة وضغوط التماس تحتها كخطوط كنتورية."}}},
        {"frmOptionDraw",
         {{"Dieses Menü zeigt die verfügbaren Kurven der Ergebnisse an.",
           "Wählen Sie eine der Kurven der Ergebnisse aus,",
           "die Sie darstellen wollen. Dann, klicken Sie auf Schaltfläche „OK“."},
          {"This menu shows the available curves of results.", "Select a curve of results to draw,",
           "then click on the button 'OK'."},
          {"هذه القائمة تعرض المنحنيات المتاحة من النتائج.", "اختار منحنى من النتائج للعرض،", "ثم انقر زر «موافق»."}}},
        {"frmProjectCheck",
         {{"Dieses Menü zeigt die Projektdaten an, die nicht eingegeben werden.",
           "Diese Daten sind für die Berechnung wichtig."},
          {"The menu shows the project data, that are not defined.", "These data are important for analysis."},
          {"من خلال هذه القائمة يتم عرض معطيات المشروع التي لم تُعرف بعد.", "هذه المعطيات مطلوبة لإجراء الحسابات."},
          "\r"}},
        {"frmProblemType",
         {{"Im Menü wird der Problemtyp festgelegt. Es gibt",
           "11 verschiedene Berechnungen. Hier wählen Sie eine Berechnung",
           "für die Untersuchung der Interaktion Boden/ Bauwerk insgesamt", "zu untersuchen."},
          {"In the menu, the problem type is defined. There are 11 different",
           "calculation problems are available for studying",
           "soil-structure interaction. Choose one of the calculation", "problems."},
          {"في هذه القائمة يتم تحديد نوع المسألة.", "يتاح 11 من المسائل الحسابية المختلفة لدراسة",
           "رد الفعل التبادلي بين التربة و المنشأ.", "اختار واحدة من هذه المسائل."},
          "\r"}},
        {"frmPreferences",
         {{"In diesem Menü werden die Standardwerte für die Berechnungen festgelegt."},
          {"In this menu, the default values for the calculations can be defined."},
          {"في هذه القائمة يمكن تحديد المعطيات الافتراضية للحسابات."}}},
    };
    return cases;
}

class HelpBoxes : public FormTest {};

TEST_F(HelpBoxes, ReadAsTheyAlwaysDid) {
    std::size_t found = 0;
    for (const Language language : {Language::German, Language::English, Language::Arabic})
        for (const FormRow& row : AllForms()) {
            StartIn(language);
            Session.ProblemType = row.ProblemType;
            const auto form = row.Make();
            const auto expected = Cases().find(form->Name);
            if (expected == Cases().end()) continue;
            ++found;
            host.OnForm([&](Form& shown) { Click(shown, "cmdHelp"); });
            CurrentHost().ShowForm(*form);
            const HelpCase& help = expected->second;
            EXPECT_EQ(host.HelpTexts.back().Text, Joined(language == Language::German    ? help.German
                                                         : language == Language::English ? help.English
                                                                                         : help.Arabic,
                                                         help.End))
                << form->Name;
        }
    EXPECT_GE(found, 3 * Cases().size());
}

}  // namespace
}  // namespace lithmark::tests
