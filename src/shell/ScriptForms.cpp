#include "shell/ScriptForms.h"

#include "shell/Session.h"

namespace tessarine {

const std::vector<std::string>& RequireForm5Loaded(Session& session) {
  if (session.form5LoadedAt != session.form1.romOpenings) {
    LoadForm5Lists(session.form5, session.form1, session.rom);
    session.form5LoadedAt = session.form1.romOpenings;
  }
  return session.form5.Combo2.rows;
}

void LoadForm3(Session& session) {
  session.form3 = Form3{};
  LoadWildBattleLists(session.form3, session.form1, RequireForm5Loaded(session));
}

void LoadForm4(Session& session) {
  session.form4 = Form4{};
  LoadWildBattleLists(session.form4, session.form1, RequireForm5Loaded(session));
}

void LoadForm5(Session& session) {
  session.form5 = Form5{};
  session.form5LoadedAt.reset();
  RequireForm5Loaded(session);
}

void UnloadForm5(Session& session) { session.form5LoadedAt.reset(); }

void ItemNamesChanged(Session& session) { session.form5LoadedAt.reset(); }

}  // namespace tessarine
