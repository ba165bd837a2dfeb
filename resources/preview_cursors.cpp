#include "resources/preview_cursors.h"
#include <iterator>

namespace {

const char* const closedHand[] = {
    "                ", //
    "                ", //
    "                ", //
    "                ", //
    "    ## ## ##    ", //
    "   #oo#oo#oo##  ", //
    "   #oo#oo#oo#o# ", //
    "    #oooooooo#o#", //
    "   ##ooooooooo# ", //
    "  #ooooooooooo# ", //
    "  #ooooooooooo# ", //
    "  #oooooooooo#  ", //
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
