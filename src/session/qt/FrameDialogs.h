#pragma once

namespace steward {

class Desktop;
class FrameWindow;
class HighlightStore;
class MacroStore;
class QtKeyboardHost;
class QtProfileHost;
class SoundFolder;
class SpeechEngine;
struct CommandState;
struct Session;

// The sheets and questions that the frame's commands open; each gives the command line the
// focus back when it closes.
class FrameDialogs {
  public:
    struct Links {
        FrameWindow& Frame;
        Session& State;
        Desktop& Dialogs;
        MacroStore& Macros;
        CommandState& Commands;
        HighlightStore& Highlights;
        SoundFolder& Sounds;
        QtProfileHost& Profile;
        QtKeyboardHost& Keyboard;
        // Asked before "Speak" may be ticked.
        SpeechEngine& Voice;
    };

    explicit FrameDialogs(const Links& links) : links_(links) {}

    // The macro sheet, then the title, which shows the current set.
    void EditMacros();
    // The highlight sheet over the Game window's colours.
    void EditHighlights();
    // The options sheet; the sounds follow a new Sound Path at once, and "Speak" stays off
    // without a voice.
    void EditOptions();
    // Asks whom to drag: OK takes the field as DragTarget, "Stop Dragging" empties it.
    void AskDragTarget();
    // Copy Special: the active window's selection, or else the clipboard's lines, go to the
    // string or the name highlights.
    void CopyToHighlights(int command);

  private:
    Links links_;
};

} // namespace steward
