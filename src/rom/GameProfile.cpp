#include "rom/GameProfile.h"

#include <array>

namespace tessarine {
namespace {

constexpr std::array<GameProfile, 4> kProfiles{{
    {"AXVE", "rs", "&H1F716C", "&H38EE50", "&H391E78", "&H38D880", "&H38E674", "&H38E6DC", "&H38BEBC",
     "&H160B9B", "&H15DDD7", "&H3C5564"},
    {"AXPE", "rs", "&H1F70FC", "&H38EDE0", "&H391E08", "&H38D810", "&H38E604", "&H38E66C", "&H38BE4C",
     "&H160B2B", "&H15DD67", "&H3C55BC"},
    {"BPRE", "frlg", "&H245EE0", "&H3B27D4", "&H3B4BFC", "", "&H3B2D7C", "&H3B2120", "&H3B177C", "", "",
     "&H3DB028"},
    {"BPGE", "frlg", "&H245EBC", "&H3B27B4", "&H3B4BDC", "", "&H3B2D5C", "&H3B2100", "&H3B175C", "", "",
     "&H3DAE64"},
}};

}  // namespace

std::optional<GameProfile> FindGameProfile(std::string_view gameCode) {
  for (const GameProfile& profile : kProfiles) {
    if (profile.code == gameCode) return profile;
  }
  return std::nullopt;
}

}  // namespace tessarine
