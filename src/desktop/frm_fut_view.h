#pragma once

#include "desktop/term_parts.h"
#include "desktop/window_views.h"

#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include <array>
#include <functional>
#include <optional>

class QAction;
class QMenu;
class frmFUT;

/// frmFUT on screen. The dialog itself never shows; its frame does.
class FrmFutView : public WindowView {
    Q_OBJECT
public:
    FrmFutView(Program& program, frmFUT& window, QWidget* over, std::function<void()> afterEvent);
    ~FrmFutView() override;
    void Follow() override;
    void Open() override;
    void Leave() override;
    [[nodiscard]] bool HasKeyboard() const override;

protected:
    void TakeKeyboard() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildMenus(QWidget* body);
    void BuildLists();
    void BuildButtons(QWidget* body);
    [[nodiscard]] QRect SavedPlace() const;
    /// Without a saved place it stands where it covers nothing, until a person puts it elsewhere.
    void StandFree();
    void ShowFirst();
    /// The floating window's place and size go into the model.
    void KeepPlace();
    /// It has docked or come loose.
    void KeepSide();
    /// Moved or sized: kept when it rests, for a window on its way to a side is no place of its own.
    void KeepPlaceSoon();
    void FollowMoreLists();
    void FollowButtons();
    [[nodiscard]] double PixelsPerTwip() const;
    [[nodiscard]] int Pixels(float twips) const;
    [[nodiscard]] float Twips(int pixels) const;
    /// The model keeps a place on the screen.
    void TakePlace(const QRect& place);

    frmFUT& model_;
    QPointer<TermsDock> dock_; ///< gone before the view when the main window goes
    QWidget* content_ = nullptr;
    QWidget* body_ = nullptr;
    QPushButton* restore_ = nullptr;
    QMenu* file_ = nullptr;
    TermRows* rows_ = nullptr;
    TermListView* terms_ = nullptr;
    FileListView* lists_ = nullptr;
    std::array<QPushButton*, 4> options_{};
    std::array<QPushButton*, 3> cases_{};
    QAction* default_ = nullptr;
    QTimer resting_;
    int version_ = -1;
    /// Open, it is not shown before the page is. Once it has its place, a person's moves are kept.
    enum class Stands { Unplaced, Waiting, Placed };
    Stands stands_ = Stands::Unplaced;
    QWidget* desk_ = nullptr;
    std::optional<QRect> free_; ///< where it stands free
    bool following_ = false;
};
