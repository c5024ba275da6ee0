#pragma once

#include "desktop/page_context.h"
#include "desktop/paper_surface.h"
#include "program/page_records.h"

#include <QWidget>

#include <functional>
#include <map>
#include <memory>
#include <vector>

class BandView;
class FrameView;
class LabelView;
class LogoView;
class MarkView;
class QtTextMeasure;
class TextAreaView;
struct Program;

/// One page of paper with its fields as real widgets. Widgets are made when their field first shows.
class PageView : public QWidget {
    Q_OBJECT
public:
    PageView(Program& program, PageId page, const QtTextMeasure& measure, QWidget* parent);
    ~PageView() override;

    /// Sets what differs from the records.
    void Follow();
    /// Puts the keyboard where the model has the focus.
    void FollowFocus();

    [[nodiscard]] PageContext& Context() { return context_; }
    [[nodiscard]] TextAreaView* Field(const FieldRef& field) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    /// In the label mode the page itself has the keyboard.
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    /// A band may begin on the desk beside the paper.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FollowAreas(FieldKind kind, std::vector<TextAreaView*>& views, const std::vector<TextArea>& records);
    void FollowLabels(FieldKind kind, std::vector<LabelView*>& views, const std::vector<PageLabel>& records);
    void RenameFields();
    void FollowMarks();
    void FollowPaper();
    void FollowLogo();
    void FollowFrame();
    [[nodiscard]] float Twips(double pixels) const;
    void Done();
    void DrawFixed(QPainter& painter) const;
    void DrawGrid(QPainter& painter) const;

    PageContext context_;
    Program& program_;
    PageId id_;
    std::vector<TextAreaView*> txt_;
    std::vector<TextAreaView*> txtQty_;
    std::vector<TextAreaView*> txtAmt_;
    std::vector<LabelView*> lbl_;
    std::vector<LabelView*> lblAt_;
    std::vector<LabelView*> lblEach_;
    std::vector<MarkView*> marks_;
    BandView* band_ = nullptr;
    FrameView* frame_ = nullptr;
    /// What is painted on the paper itself, as last shown.
    std::vector<PageLine> lines_;
    std::vector<PageLine> centre_;
    std::vector<PagePoint> grid_;
    LogoView* logo_ = nullptr;
    bool renamed_ = false; ///< a label that names a field says something else
    bool ink_ = false;
    int inkVersion_ = 0;
    PaperRecord preview_;
};
