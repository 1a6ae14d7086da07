#include "shell/frmAbout.h"

namespace tessarine {

void LoadAbout(frmAbout& form) {
  form.title = std::string("About ") + kAppTitle;
  form.lblTitle.caption = kAppTitle;
  form.lblVersion.caption = "Version " + std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
                            std::to_string(kVersionRevision);
}

}  // namespace tessarine
