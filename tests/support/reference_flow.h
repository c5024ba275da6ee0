#pragma once

#include "platform/text_measure.h"
#include "program/page_records.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The flow of text over the pages, written a second time and apart from the program, from the rules of the
/// trade alone: plain, slow and in one piece, so that it can be read against them. Random typing on the
/// program is compared with it. It knows no blocks and no files.
class ReferenceFlow {
public:
    struct Field {
        std::string Text;
        std::string Kind;  ///< first four characters of the Tag
        std::string Limit; ///< last three
        float Width = 0;
        float Left = 0;
        int Start = 0;
        int Length = 0;
        Color Back = 0;
        bool Visible = true;
        bool Locked = false;
        bool NoNumber = false; ///< of a box
    };
    /// What the stores and tables say of one text area.
    struct Row {
        std::string Store;
        std::string PropText;
        bool QtyBox = false;
        std::string QtyValue;
        std::string AmtValue;
        float Amount = 0;
        float Taxable = 0;
        bool Sign = false; ///< the currency mark beside an amount shows
        bool Exempt = false;
        bool Emptied = false; ///< by the person who is still there
    };
    struct Sheet {
        std::vector<Field> txt;
        std::vector<Field> qty;
        std::vector<Field> amt;
        std::vector<Row> Rows;
        float Sum = 0;
        float TaxableSum = 0;
    };

    ReferenceFlow(const TextMeasure& measure, float taxRate, int thisYear);

    // What a person does.
    void Character(char character);
    void Roll(char first, char second); ///< the first key is let go after the second is pressed
    void Backspace();
    void Delete();
    void Key(int keyCode); ///< a key that enters nothing
    [[nodiscard]] bool CompletionStands() const;
    void TakeWithShift(int keyCode);    ///< Right, Enter or the blank with Shift while a completion stands
    void Commit(std::string_view text); ///< by an input method
    void PasteByKey(std::string_view clipboard);
    void PasteByMouse(const FieldRef& field, int at, std::string_view text);
    void Drag(const FieldRef& field, int from, int to); ///< a click when both are equal
    void DoubleClick(const FieldRef& field);
    void MakeExempt(const FieldRef& field); ///< right press and the menu's entry
    void ClickMark(PageId page, int index);
    /// A line of a terms list, or a calculator's result, let go over a field.
    void DropTerm(const FieldRef& field, std::string_view line);

    /// The lines by which words are completed; none: nothing is completed.
    std::vector<std::string> Terms;
    int StartLength = 0;
    int Completions = 0;
    int PricesPlaced = 0;

    std::array<Sheet, 6> Sheets;
    std::optional<FieldRef> Focus;
    int CursorPos = 0;
    int KeyCounter = 0;
    int CurrentArea = 0;
    int CurrentPage = 0;
    int LastArea = 0;
    int Warnings = 0;
    int Pushes = 0; ///< lines that were split, those of cascades included
    int DeepestPush = 0;
    int Products = 0;
    bool Stale = false; ///< the recalculate button is red
    std::string TextNum;
    float SubTotal = 0;
    float TaxableTotal = 0;
    float SalesTax = 0;
    float Total = 0;
    float Deposit = 0;
    float Balance = 0;

    [[nodiscard]] Field& At(const FieldRef& field);

private:
    static void MarkFirstWord(Field& field);
    [[nodiscard]] bool Over(const Field& field, int limit) const;
    [[nodiscard]] bool HasBoxes(const FieldRef& field) const;
    enum class Held { Nothing, Shift };
    void KeyDown(int keyCode, Held held = Held::Nothing);
    void ClearPlaceholder();
    [[nodiscard]] bool KeyPress(char character);
    /// A key that is down: the field into which it has put a character, and the place behind that.
    struct Pressed {
        int Code = 0;
        std::optional<FieldRef> Into;
        int Behind = 0;
    };
    [[nodiscard]] Pressed Press(int code, char character, Held held = Held::Nothing);
    void KeyUp(const Pressed& key);
    void KeyUp(int keyCode = 0) { KeyUp(Pressed{keyCode, std::nullopt, 0}); }
    struct Word {
        bool Active = false; ///< a completion stands
        bool Under = false;  ///< a word is under way
        int Start = 0;
        std::string Amount;
    };
    [[nodiscard]] Word& WordOf(PageId page) { return words_[static_cast<std::size_t>(IndexOf(page))]; }
    void Settle(PageId page);
    void TakeWord(PageId page);
    void CompletionKeyUp(const Pressed& key);
    void PlacePrice(const FieldRef& line, const std::string& amount);
    void TypedAndLeft(const FieldRef& field, const std::string& figure);
    void BoxKeyDown(int keyCode);
    void Walk(int keyCode);

    void Assign(const FieldRef& field, const std::string& text);
    void Replace(std::string_view with);
    void Edit(std::string_view text, int start);
    void Changed(const FieldRef& field);
    void LineChanged(PageId page, int index);
    void FinalChanged(int index);
    void BoxChanged(const FieldRef& box);
    void StoreLine(PageId page, int index);
    void TakeAmount(PageId page, int index);
    void CheckForPush();
    void PushTheText(PageId page, int index);
    void Product(PageId page, int index);
    std::optional<FieldRef> visited_; ///< the box that the keyboard came to last
    std::string amountBefore_;        ///< of its row, at that moment
    void ToggleColumns(PageId page, int index);

    void GiveFocus(const FieldRef& field);
    void Arrive(const FieldRef& field); ///< by key: a figure is marked whole
    void ColourBox(const FieldRef& box);
    void GotFocus(const FieldRef& field);
    void LostFocus(const FieldRef& field);
    void LeaveAmount(PageId page, int index);
    void ToPage(PageId page);

    void SumPage(PageId page);
    void RunningTotals();
    [[nodiscard]] std::string DepositAsTyped();

    std::array<Word, 6> words_;
    const TextMeasure& measure_;
    float taxRate_;
    int thisYear_;
    std::string currentText_;
    std::string currentKind_;
    std::string currentLimit_;
    float currentWidth_ = 0;
    std::string lastKey_;
    bool pushNeeded_ = false;
    int pushing_ = 0; ///< pushes that stand one in another
    bool steps_ = false;
    bool follows_ = false;
    bool refire_ = false;
    bool running_ = false;
    bool warned_ = false;
    bool rightClick_ = false;
};
