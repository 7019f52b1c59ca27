// The measures of all windows, in logical pixels.
#pragma once

namespace lithmark::sizes {

inline constexpr int kRowGap = 6;     // between the rows of a group
inline constexpr int kGroupPad = 8;   // inside a group
inline constexpr int kEdge = 12;      // at the edges of a window
inline constexpr int kGroupGap = 16;  // between columns and groups that stand apart
inline constexpr int kPagePad = 24;   // of a page
inline constexpr int kColumnGap = 8;  // between the parts of a field's line

// One width for all boxes, units and symbols, so that they stand under each other from group to group.
inline constexpr int kBoxWidth = 120, kUnitWidth = 68, kSymbolWidth = 48;

inline constexpr int kClicked = 24;  // the least of what is clicked

inline constexpr int kPictureWidth = 300, kPictureHeight = 260;  // the least
inline constexpr int kPictureGoodWidth = 440, kPictureGoodHeight = 400;
inline constexpr int kAnswerWidth = 300;  // the least
inline constexpr int kAnswerGoodWidth = 340, kAnswerGoodHeight = 400;
inline constexpr int kTabsBelow = 460;        // drawing and answer, one below the other, need this height
inline constexpr double kScreenShare = 0.95;  // of the free area, for a window at most
inline constexpr int kSmallScreen = 600;      // a free height below this is little
inline constexpr int kTitleBar = 36;          // what its frame takes of it

}  // namespace lithmark::sizes
