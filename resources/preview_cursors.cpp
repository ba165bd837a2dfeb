#include "resources/preview_cursors.h"
#include <iterator>

namespace {

const char* const closedHand[] = {
    "                ", //
    "                ", //
    "                ", //
    "    ## ## ##    ", //
    "   #oo#oo#oo##  ", //
    "   #ooooooooo#o#", //
    "    #oooooooooo#", //
    "  ###oooooooooo#", //
    " #oo#oooooooooo#", //
    " #ooooooooooooo#", //
    " #oooooooooooo# ", //
    "  #ooooooooooo# ", //
    "   #ooooooooo#  ", //
    "    #oooooooo#  ", //
    "     #oooooo#   ", //
    "     ########   ", //
};

const char* const openHand[] = {
    "       ##       ", //
    "   ## #oo###    ", //
    "  #oo##oo#oo#   ", //
    "  #oo##oo#oo### ", //
    "   #oo#oo#oo#oo#", //
    "   #oo#oo#oo#oo#", //
    " ## #oooooooooo#", //
    "#oo##oooooooooo#", //
    "#ooo#ooooooooo# ", //
    " #oooooooooooo# ", //
    "  #ooooooooooo# ", //
    "  #oooooooooo#  ", //
    "   #ooooooooo#  ", //
    "    #ooooooo#   ", //
    "     #oooooo#   ", //
    "     ########   ", //
};

} // namespace

const CursorPicture closedHandCursor = {closedHand, static_cast<int>(std::size(closedHand)), 16, 16};
const CursorPicture openHandCursor = {openHand, static_cast<int>(std::size(openHand)), 15, 15};
