// A plug-in for clang-tidy, which would else match each check against every declaration of Qt and
// the standard library, only to say nothing of what it finds there: nine tenths of its time. This
// leaves it the declarations that do not come from a system header.

#include <memory>
#include <string>
#include <vector>

#include <clang/AST/ASTConsumer.h>
#include <clang/AST/ASTContext.h>
#include <clang/Frontend/CompilerInstance.h>
#include <clang/Frontend/FrontendPluginRegistry.h>

namespace {

class ScopeLimit : public clang::ASTConsumer {
public:
    void HandleTranslationUnit(clang::ASTContext& context) override {
        const clang::SourceManager& sources = context.getSourceManager();
        std::vector<clang::Decl*> own;
        for (clang::Decl* declaration : context.getTranslationUnitDecl()->decls()) {
            if (!sources.isInSystemHeader(sources.getExpansionLoc(declaration->getLocation()))) {
                own.push_back(declaration);
            }
        }
        context.setTraversalScope(own);
    }
};

// Comes before what the program that loads it does, unasked.
class ScopeLimitAction : public clang::PluginASTAction {
protected:
    std::unique_ptr<clang::ASTConsumer> CreateASTConsumer(clang::CompilerInstance& /*instance*/,
                                                          llvm::StringRef /*file*/) override {
        return std::make_unique<ScopeLimit>();
    }

    bool ParseArgs(const clang::CompilerInstance& /*instance*/,
                   const std::vector<std::string>& /*arguments*/) override {
        return true;
    }

    ActionType getActionType() override { return AddBeforeMainAction; }
};

const clang::FrontendPluginRegistry::Add<ScopeLimitAction>
    registration("tessarine-own-declarations", "Traverse the declarations of the project alone");

} // namespace
