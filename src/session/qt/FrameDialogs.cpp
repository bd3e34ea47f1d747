#include "session/qt/FrameDialogs.h"

#include "analysis/qt/QtSpeech.h"
#include "base/ByteText.h"
#include "commands/qt/MacroSheet.h"
#include "config/qt/OptionsSheet.h"
#include "highlights/HighlightSound.h"
#include "highlights/HighlightStore.h"
#include "highlights/qt/HighlightSheet.h"
#include "highlights/qt/QtClipboardReader.h"
#include "scripts/CommandState.h"
#include "session/Session.h"
#include "session/qt/Desktop.h"
#include "session/qt/FrameWindow.h"
#include "session/qt/QtKeyboardHost.h"
#include "session/qt/QtProfileHost.h"

#include <string>

namespace steward {

void FrameDialogs::EditMacros()
{
    ShowMacroSheet(&links_.Frame, links_.Macros);
    links_.Profile.RefreshTitle();
    links_.Frame.FocusCommandLine();
}

void FrameDialogs::EditHighlights()
{
    Session& session = links_.State;
    ShowHighlightDialog(&links_.Frame,
                        {session.Profile.Settings, links_.Highlights, links_.Sounds, links_.Dialogs,
                         links_.Dialogs},
                        session.Windows.GameWindow);
    links_.Frame.FocusCommandLine();
}

void FrameDialogs::EditOptions()
{
    Desktop& dialogs = links_.Dialogs;
    Session& session = links_.State;
    SpeechEngine& voice = links_.Voice;
    ShowOptions(
        &links_.Frame, {session.Profile, session.Steward, session.Files},
        [&dialogs](QWidget* owner, const char* title) { return dialogs.PickFolder(owner, title); },
        [&dialogs, &voice](StewardOption option, QWidget* page) {
            if (option != SPEAK || voice.Available())
                return true;
            dialogs.ShowMessage(page, NO_VOICE_TEXT, "Speak");
            return false;
        });
    links_.Sounds.SetSoundPath(SoundPath(session.Files));
}

void FrameDialogs::AskDragTarget()
{
    char(&dragTarget)[DRAG_TARGET_SIZE] = links_.Commands.DragTarget;
    std::string target = dragTarget;
    if (!links_.Dialogs.AskDragTarget(&links_.Frame, target))
        target.clear();
    CopyCut(dragTarget, sizeof dragTarget, target.c_str());
}

void FrameDialogs::CopyToHighlights(int command)
{
    HighlightStore& highlights = links_.Highlights;
    links_.Keyboard.WithSelectionCopied([&highlights, command] {
        QtClipboardReader clipboard;
        highlights.CopyToHighlights(command, clipboard);
    });
}

} // namespace steward
