#include "shell/ScriptForms.h"

#include "editors/NameEditors.h"
#include "forms/Dialogs.h"
#include "shell/Session.h"

namespace tessarine {

const std::vector<std::string>& RequireForm5Loaded(Session& session) {
  if (session.form5LoadedAt != session.form1.romOpenings) {
    LoadForm5Lists(session.form5, session.form1, session.rom);
    session.form5LoadedAt = session.form1.romOpenings;
  }
  return session.form5.Combo2.rows;
}

namespace {

// A builder opened on a ROM whose name tables are not known: its item list stays empty, and
// the person is told why, once for the opening.
void TellUnknownTables(Session& session, Dialogs& dialogs) {
  if (session.rom.IsOpen() && !session.form1.tables.Current(session.form1)) {
    dialogs.Message("The Pokemon and Held Item lists are empty. " + std::string(kNoTablesOfThisRom));
  }
}

}  // namespace

void LoadForm3(Session& session, Dialogs& dialogs) {
  session.form3 = Form3{};
  LoadWildBattleLists(session.form3, session.form1, RequireForm5Loaded(session));
  TellUnknownTables(session, dialogs);
}

void LoadForm4(Session& session, Dialogs& dialogs) {
  session.form4 = Form4{};
  LoadWildBattleLists(session.form4, session.form1, RequireForm5Loaded(session));
  TellUnknownTables(session, dialogs);
}

void LoadForm5(Session& session, Dialogs& dialogs) {
  session.form5 = Form5{};
  session.form5LoadedAt.reset();
  RequireForm5Loaded(session);
  session.form5.filled.Fill(session.form1);  // the person's opening, not a refill for another window
  TellUnknownTables(session, dialogs);
}

void UnloadForm5(Session& session) { session.form5LoadedAt.reset(); }

void ItemNamesChanged(Session& session) { session.form5LoadedAt.reset(); }

}  // namespace tessarine
