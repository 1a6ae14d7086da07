#include "shell/Session.h"

#include "events/EventCatalogue.h"
#include "events/PersonRecord.h"
#include "rom/GameProfile.h"
#include "shell/ScriptForms.h"

namespace tessarine {

void LoadForm1(Form1& form) {
  form.Combo3.rows = EventEntryTexts(kFamilyRs);
  form.Combo4.rows = EventEntryTexts(kFamilyFrlg);
  form.Combo2.rows = MovementTypeTexts();
}

void LoadWindow(Session& session, Dialogs& dialogs, WindowName window) {
  switch (window) {
    case WindowName::Form3: LoadForm3(session); break;
    case WindowName::Form4: LoadForm4(session); break;
    case WindowName::Form5: LoadForm5(session); break;
    case WindowName::Form6: session.form6 = Form6{}; break;
    case WindowName::Form8:  // on the game code that stands now
      session.form8 = Form8{};
      LoadForm8(session.form8, session.form1.headtxt, dialogs);
      break;
    case WindowName::Form9: session.form9 = Form9{}; break;
    case WindowName::frmAbout:
      session.about = frmAbout{};
      LoadAbout(session.about);
      break;
    case WindowName::Form1:  // the main window loads once, with the session
    case WindowName::Form2:
      break;
  }
}

}  // namespace tessarine
