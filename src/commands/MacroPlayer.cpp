#include "commands/MacroPlayer.h"

#include "base/ByteText.h"
#include "base/FrameCommand.h"
#include "base/FrameQueue.h"
#include "commands/CommandLineEdit.h"
#include "commands/CommandSender.h"
#include "commands/KeyboardHost.h"
#include "commands/MacroStore.h"
#include "commands/ScriptNames.h"

#include <cstring>

namespace steward {

namespace {

// The caret and the answer of one play; both start unset.
struct PlayState {
    bool MarkSet = false;
    int MarkStart = 0;
    int MarkEnd = 0;
    bool Asked = false;
    char Answer[MACRO_ANSWER_SIZE] = {};
};

} // namespace

MacroPlayer::MacroPlayer(const CommandParts& parts, CommandSender& sender)
    : parts_(parts), sender_(sender)
{
}

void MacroPlayer::ExpandMacro(KeyModifiers modifiers, int virtualKey)
{
    const char* text = parts_.Macros.LookupMacro(modifiers, virtualKey);
    if (text)
        PlayMacro(text);
}

void MacroPlayer::PlayMacro(const char* slotText)
{
    // A pause or the question may let the player edit this macro, so the play reads a copy.
    char text[MACRO_SLOT_SIZE];
    CopyCut(text, sizeof text, slotText);
    if (text[0] == 0 || PlayWord(text))
        return;
    PlayState play;
    CommandLineEdit& line = parts_.Line;
    for (const char* c = text; *c; ++c) {
        if (*c == '@') {
            line.GetSelection(play.MarkStart, play.MarkEnd);
            play.MarkSet = true;
            continue;
        }
        if (*c != '\\') {
            line.TypeCharacter(*c);
            continue;
        }
        ++c;
        switch (*c) {
        case 0:
            --c; // a lone backslash at the end ends the play
            break;
        case '?':
            if (!play.Asked) {
                bool given = parts_.Host.AskString(text, play.Answer, sizeof play.Answer);
                TrimTrailingBlanks(play.Answer);
                if (!given || play.Answer[0] == 0) {
                    line.SetText("");
                    return;
                }
                play.Asked = true;
            }
            Type(play.Answer);
            break;
        case 'd':
        case 'D':
            Type(parts_.State.DragTarget);
            break;
        case 'n':
        case 'N':
        case 'r':
        case 'R':
            PressEnter();
            play.MarkSet = false;
            break;
        case 'p':
        case 'P':
            parts_.Host.PumpFor(1);
            break;
        case 'x':
        case 'X':
            line.SetText("");
            break;
        case '\\':
            line.TypeCharacter('\\');
            break;
        default:
            break;
        }
    }
    if (play.MarkSet && play.MarkStart == play.MarkEnd)
        line.SetSelection(play.MarkStart, play.MarkStart);
}

bool MacroPlayer::PlayWord(const char* text)
{
    static constexpr struct {
        const char* Word;
        int Command;
    } POSTED_WORDS[] = {
        {"{script}", CMD_EXECUTE_SCRIPT},
        {"{record}", CMD_RECORD_SCRIPT},
        {"{drag}", CMD_DRAG_SOMEONE},
        {"{notes}", CMD_RUN_NOTEPAD},
    };
    CommandLineEdit& line = parts_.Line;
    if (StartsWith(text, "{=")) {
        RunMacroScript(text + 2);
    } else if (EqualNoCase(text, "{cut}")) {
        line.Cut();
    } else if (EqualNoCase(text, "{copy}")) {
        int start = 0;
        int end = 0;
        line.GetSelection(start, end);
        if (start != end)
            line.Copy();
        else
            parts_.Host.CopyFromActiveChild();
    } else if (EqualNoCase(text, "{paste}")) {
        line.Paste();
    } else if (EqualNoCase(text, "{clear}")) {
        line.Clear();
    } else if (EqualNoCase(text, "{quit}")) {
        parts_.Host.PostClose();
    } else if (EqualNoCase(text, "{save}")) {
        SaveLine();
    } else {
        for (const auto& word : POSTED_WORDS) {
            if (EqualNoCase(text, word.Word)) {
                parts_.Queue.PostCommand(word.Command);
                return true;
            }
        }
        return false;
    }
    return true;
}

void MacroPlayer::RunMacroScript(const char* name)
{
    if (name[0] == '.') {
        char line[MACRO_SLOT_SIZE];
        CopyCut(line, sizeof line, name);
        line[std::strcspn(line, "}")] = 0;
        sender_.SetCommandLine(line, 0);
        sender_.PostEnterKey(false);
        return;
    }
    SetMacroScript(parts_.State, name);
    parts_.Queue.PostCommand(MM_RUN_SCRIPT);
}

void MacroPlayer::SaveLine()
{
    char text[MACRO_LINE_SIZE];
    parts_.Line.GetText(text, sizeof text);
    parts_.Line.SetText("");
    sender_.RememberCommand(text);
}

void MacroPlayer::PressEnter()
{
    char text[MACRO_LINE_SIZE];
    parts_.Line.GetText(text, sizeof text);
    sender_.SendCommand(text);
    sender_.RememberCommand(text);
}

void MacroPlayer::Type(const char* text)
{
    for (; *text; ++text)
        parts_.Line.TypeCharacter(*text);
}

} // namespace steward
