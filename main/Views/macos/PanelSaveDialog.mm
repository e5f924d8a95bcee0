// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#import <AppKit/AppKit.h>
#import <UniformTypeIdentifiers/UniformTypeIdentifiers.h>

#include <QPointer>

#include "Views/shell/SaveDialog.h"

namespace selvane {
namespace {

class PanelSaveDialog final : public SaveDialog {
public:
    ~PanelSaveDialog() override { forget(); }

    void ask(QWindow* parent, const QString& title, const QString& folder, const QString& name) override;
    void askForExisting(QWindow* parent, const QString& title, const QString& folder) override;

private:
    /// Closes a panel that is still open and ignores its answer.
    void forget() {
        NSSavePanel* const panel = m_panel;
        m_panel = nil;
        [panel cancel:nil];
    }
    void show(NSSavePanel* panel, QWindow* parent, const QString& title, const QString& folder);
    void answer(NSSavePanel* panel, NSModalResponse response);

    NSSavePanel* m_panel = nil;
};

NSWindow* systemWindow(const QWindow* window) {
    if (window == nullptr || window->handle() == nullptr)
        return nil;
    NSView* view = (__bridge NSView*)reinterpret_cast<void*>(window->winId());
    return view.window;
}

void PanelSaveDialog::ask(QWindow* parent, const QString& title, const QString& folder, const QString& name) {
    forget();
    NSSavePanel* panel = [NSSavePanel savePanel];
    panel.nameFieldStringValue = name.toNSString();
    panel.canCreateDirectories = YES;
    show(panel, parent, title, folder);
}

void PanelSaveDialog::askForExisting(QWindow* parent, const QString& title, const QString& folder) {
    forget();
    show([NSOpenPanel openPanel], parent, title, folder);
}

void PanelSaveDialog::show(NSSavePanel* panel, QWindow* parent, const QString& title, const QString& folder) {
    m_panel = panel;
    panel.message = title.toNSString();
    panel.allowedContentTypes = @[ UTTypeZIP ];
    panel.directoryURL = QUrl::fromLocalFile(folder).toNSURL();
    const QPointer<PanelSaveDialog> self(this);
    // AppKit calls this on the main thread once the panel is gone.
    void (^answered)(NSModalResponse) = ^(NSModalResponse response) {
      if (self)
          self->answer(panel, response);
    };
    if (NSWindow* window = systemWindow(parent))
        [panel beginSheetModalForWindow:window completionHandler:answered];
    else
        [panel beginWithCompletionHandler:answered];
}

void PanelSaveDialog::answer(NSSavePanel* panel, NSModalResponse response) {
    if (panel != m_panel)
        return;
    m_panel = nil;
    NSURL* place = panel.URL;
    if (response == NSModalResponseOK && place != nil)
        emit chosen(QUrl::fromNSURL(place));
    else
        emit cancelled();
}

} // namespace

std::unique_ptr<SaveDialog> makeSaveDialog() {
    return std::make_unique<PanelSaveDialog>();
}

} // namespace selvane
