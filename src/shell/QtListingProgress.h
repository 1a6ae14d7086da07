#pragma once

#include <QProgressDialog>

#include "scripts/ListScript.h"

namespace tessarine {

// The progress dialog of one press of Command2. It stays hidden while the listing is quick
// and appears once the listing is likely to take longer than half a second; its Cancel
// stops the listing, and Text4 keeps what it had. Made on the stack of the press:
//
//   QtListingProgress progress(this);
//   ListIntoText4(form, rom, dialogs, progress.Callback());
class QtListingProgress {
 public:
  explicit QtListingProgress(QWidget* parent);
  QtListingProgress(const QtListingProgress&) = delete;
  QtListingProgress& operator=(const QtListingProgress&) = delete;

  // For ListScript and ListIntoText4; valid while this lives.
  ListingProgress Callback();

  QProgressDialog& dialog() { return dialog_; }

 private:
  QProgressDialog dialog_;
};

}  // namespace tessarine
