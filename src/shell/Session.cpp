#include "shell/Session.h"

#include "events/EventCatalogue.h"
#include "events/PersonRecord.h"
#include "rom/GameProfile.h"

namespace tessarine {

void LoadForm1(Form1& form) {
  form.Combo3.rows = EventEntryTexts(kFamilyRs);
  form.Combo4.rows = EventEntryTexts(kFamilyFrlg);
  form.Combo2.rows = MovementTypeTexts();
}

}  // namespace tessarine
