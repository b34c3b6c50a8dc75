// SPDX-License-Identifier: MIT
// The numeric codes of the skin file and their names.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace ornavo {

// Fields hold the plain 32-bit number, because a file may contain any; these are the known ones.
enum ElementTypeCode : std::int32_t {
    TypeMain,
    TypeButton,
    TypePicture,
    TypeVolume,
    TypeInfo,
    TypeSearchBox,
    TypeScrollbar
};
/// Whether every layout has one element of this type, which is never added, cloned or deleted.
constexpr bool IsStandardType(std::int32_t type) {
    return type == TypeMain || type == TypeSearchBox || type == TypeScrollbar;
}
enum ActionTypeCode : std::int32_t {
    ActionForward = 6,
    ActionBackwards = 7,
    ActionVolumeUp = 10,
    ActionVolumeDown = 11,
    ActionScript = 12,
    ActionClose = 13,
    ActionMaximise = 14,
    ActionMinimise = 15
};
enum InfoTypeCode : std::int32_t {
    InfoUserLabel,
    InfoArtistAndSongTitle,
    InfoSongTitle,
    InfoArtistName,
    InfoAlbumName,
    InfoVolume,
    InfoAlbumPicture,
    InfoArtistPicture,
    InfoElapsedTime,
    InfoRemainingTime,
    InfoSongDuration,
    InfoSongInfo,
    InfoRepeatStatus,
    InfoShuffleStatus,
    InfoStatus,
    InfoCredits,
    InfoSearchTotal,
    InfoSystemTime,
    InfoPlaylistName,
    InfoPlaylistDuration,
    InfoSongProperty
};
enum AlignCode : std::int32_t { AlignStart, AlignMiddle, AlignEnd, AlignStretch };  // of HAlign and VAlign
enum PropertyKindCode : std::int32_t {
    KindBoolean = 0,
    KindColour = 1,
    KindNumber = 2,
    KindValue = 3,
    KindFont = 4,
    KindPicture = 5,
    KindText = 6,
    KindHAlign = 7,
    KindVAlign = 8,
    KindElementType = 9,
    KindActionType = 10,
    KindHeading = 11,
    KindElementList = 12,
    KindInfoType = 13,
    KindHorizontal = 14,
    KindVertical = 15
};

// The index of each name is its code.
inline constexpr std::array<std::string_view, 7> ElementTypeNames = {
    "Main", "Button", "Picture", "Volume", "Info", "Search Box", "Scrollbar"};
// clang-format off
inline constexpr std::array<std::string_view, 56> ActionTypeNames = {
    "<nothing>", "Play", "Stop", "Pause", "Skip to Next", "Skip to Prev", "Forward", "Backwards", "Repeat",
    "Shuffle", "Volume Up", "Volume Down", "Run db-Script", "Close Jukebox", "Maximize Jukebox",
    "Minimize Jukebox", "Toggle Video", "Toggle Lyrics", "Toggle Equalizer", "Kiosk Back", "Kiosk Forward",
    "Kiosk Albums", "Kiosk Artists", "Kiosk Songs", "Kiosk Special", "Kiosk Playlist", "Kiosk Top 100",
    "Kiosk Delete Playlist", "Kiosk Magic", "Kiosk Scroll Up", "Kiosk Scroll Down", "Kiosk Search/Keyboard",
    "K/Spec PL-Generator", "K/Spec AutoPlay Start", "K/Spec AutoPlay Stop", "K/Spec AutoPlay Lists",
    "K/Spec Load Playlist", "K/Spec Save Playlist", "K/Spec Songs Favorite", "K/Spec Songs Party",
    "K/Spec Songs Genre", "K/Spec Songs Rate", "K/Spec Songs Year", "K/Spec Songs Category",
    "K/Spec Albums Genre", "K/Spec Albums Rate", "K/Spec Albums Year", "K/Spec Albums Favorite",
    "K/Spec Artists Genre", "K/Spec Artists Rate", "K/Spec Artists Favorite", "K/Spec Unplayed Songs",
    "K/Spec Last Played Songs", "Toggle Auto Cue", "Toggle Auto Play Mode", "Toggle Tempo Meter",
};
inline constexpr std::array<std::string_view, 21> InfoTypeNames = {
    "User Label", "Artist & Song Title", "Song Title", "Artist Name", "Album Name", "Volume",
    "Album Picture", "Artist Picture", "Elapsed Time", "Remaining Time", "Song Duration", "Song Info",
    "Repeat Status", "Shuffle Status", "Status", "Credits", "Search Total", "System Time", "Playlist Name",
    "Playlist Duration", "Song Property",
};
// clang-format on
inline constexpr std::array<std::string_view, 4> HAlignNames = {"Left", "Middle", "Right", "MiddleStretch"};
inline constexpr std::array<std::string_view, 4> VAlignNames = {"Top", "Middle", "Bottom", "MiddleStretch"};
inline constexpr std::array<std::string_view, 3> HorizontalNames = {"Left", "Right", "Center"};
inline constexpr std::array<std::string_view, 3> VerticalNames = {"Top", "Bottom", "Center"};

}  // namespace ornavo
