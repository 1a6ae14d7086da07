#include "shell/Session.h"

#include "events/EventCatalogue.h"
#include "events/PersonRecord.h"
#include "rom/GameProfile.h"
#include "shell/ScriptForms.h"

namespace tessarine {

void LoadForm1(Form1& form) {
  form.Combo3.rows = EventEntryTexts(kFamilyRs);
  form.Combo4.rows = EventEntryTexts(kFamilyFrlg);
  form.Combo5.rows = EventEntryTexts(kFamilyE);
  form.Combo2.rows = MovementTypeTexts();
}

void ResetWindow(Session& session, WindowName window) {
  switch (window) {
    case WindowName::Form2: session.form2 = Form2{}; break;
    case WindowName::Form3: session.form3 = Form3{}; break;
    case WindowName::Form4: session.form4 = Form4{}; break;
    case WindowName::Form5: session.form5 = Form5{}; break;
    case WindowName::Form6: session.form6 = Form6{}; break;
    case WindowName::Form8: session.form8 = Form8{}; break;
    case WindowName::Form9: session.form9 = Form9{}; break;
    case WindowName::frmAbout: session.about = frmAbout{}; break;
    case WindowName::Form1: break;  // the main window loads once, with the session
  }
}

void LoadWindow(Session& session, Dialogs& dialogs, WindowName window) {
  switch (window) {
    case WindowName::Form2: LoadForm2(session.form2, session.form1, session.rom, dialogs); break;
    case WindowName::Form3: LoadForm3(session, dialogs); break;
    case WindowName::Form4: LoadForm4(session, dialogs); break;
    case WindowName::Form5: LoadForm5(session, dialogs); break;
    case WindowName::Form8: LoadForm8(session.form8, session.form1, dialogs); break;
    case WindowName::frmAbout: LoadAbout(session.about); break;
    case WindowName::Form6: session.form6.filled.Fill(session.form1); break;
    case WindowName::Form1:
    case WindowName::Form9:
      break;
  }
}

}  // namespace tessarine
