// A plugin of clang-tidy's: its checks look at our declarations only. By itself clang-tidy 14 matches them against
// every declaration of every header of the library and the toolkit too, which takes more than half of its time, and
// keeps what it finds there to itself.

#include <clang/AST/ASTConsumer.h>
#include <clang/AST/ASTContext.h>
#include <clang/Basic/SourceManager.h>
#include <clang/Frontend/FrontendPluginRegistry.h>

#include <memory>
#include <string>
#include <vector>

namespace {

/// Collects a source's declarations as they are parsed, and narrows the walk over them before the checks take it.
class OwnCode : public clang::ASTConsumer {
  public:
    bool HandleTopLevelDecl(clang::DeclGroupRef group) override {
        for (clang::Decl *declaration : group) {
            const clang::SourceManager &sources = declaration->getASTContext().getSourceManager();
            const clang::SourceLocation place = sources.getExpansionLoc(declaration->getLocation());
            if (!sources.isInSystemHeader(place)) own_.push_back(declaration);
        }
        return true;
    }

    void HandleTranslationUnit(clang::ASTContext &context) override { context.setTraversalScope(own_); }

  private:
    std::vector<clang::Decl *> own_;
};

class OwnCodeFirst : public clang::PluginASTAction {
    std::unique_ptr<clang::ASTConsumer> CreateASTConsumer(clang::CompilerInstance &, llvm::StringRef) override {
        return std::make_unique<OwnCode>();
    }
    bool ParseArgs(const clang::CompilerInstance &, const std::vector<std::string> &) override { return true; }
    ActionType getActionType() override { return AddBeforeMainAction; }
};

const clang::FrontendPluginRegistry::Add<OwnCodeFirst> Registered("own-code",
                                                                  "leaves out what headers of others declare");

} // namespace
