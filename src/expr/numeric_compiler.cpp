#include "expr/numeric_compiler.h"

#include <algorithm>
#include <string>
#include <utility>

#include "expr/numeric_program.h"
#include "numeric/checked.h"

// Two passes: the program, whose order is that of a pile, becomes a tree, in which constants are folded; the
// tree becomes steps, with as many operands as possible fused into the step that uses them.

namespace tavrelo::expr {

namespace {

constexpr double kTrue = -1.0;
constexpr double kFalse = 0.0;

/// Thrown where a program has no numeric form.
struct NoNumericForm {};

// --- The tree
// ----------------------------------------------------------------------------------------------------------

enum class NodeKind : std::uint8_t { Constant, Variable, Unary, Binary, Ternary };

/// What is known of the form of a value. Only that of a number that was computed or of a literal with a point
/// is certain to be a number; a choice among texts and numbers may be either.
enum class Form : std::uint8_t { Number, Text, Either };

using NodeIndex = std::size_t;

struct Node {
    NodeKind kind = NodeKind::Constant;
    Form form = Form::Number;
    Token token = Token::None;  // the operation
    std::uint16_t variable = 0;
    double constant = 0.0;
    const std::string* text = nullptr;  // of a constant that is a Text
    NodeIndex operands[3] = {};         // in the order of the formula
};

/// Angles are measured with the factor in force at each evaluation.
bool DependsOnAngleFactor(Token token) {
    return (token >= Token::Sen && token <= Token::Sec) || (token >= Token::Sese && token <= Token::Coco);
}

class TreeBuilder {
  public:
    TreeBuilder(const Program& program, const VariableList& variables) : m_variables(variables) {
        m_nodes.reserve(program.instructions.size());
        m_pile.reserve(program.instructions.size());
        for (const Instruction& instruction : program.instructions) {
            Add(instruction);
        }
    }

    const std::vector<Node>& Nodes() const { return m_nodes; }
    /// The value of the formula. What STP1 leaves below it is not used, and cannot fail when it is a leaf.
    NodeIndex Root() const {
        for (std::size_t k = 0; k + 1 < m_pile.size(); ++k) {
            if (At(m_pile[k]).kind > NodeKind::Variable) {
                throw NoNumericForm();
            }
        }
        return m_pile.back();
    }
    std::size_t VariablesNeeded() const { return m_variables_needed; }

  private:
    void Add(const Instruction& instruction);
    Node OperandNode(const Instruction& instruction);
    std::uint16_t PositionOf(const CVariable* variable);
    /// An operation on the topmost entries.
    Node OperationNode(Token token, std::size_t operands, Form form = Form::Number) const;
    void AddOperation(const Instruction& instruction, std::size_t operands);
    void AddComparison(const Instruction& instruction);
    void AddExtreme(const Instruction& instruction);
    void AddChoice(const Instruction& instruction);
    void AddStep();
    /// Whether two values compare as texts; their forms must decide it.
    bool ComparesTexts(const Node& a, const Node& b) const;
    double Folded(const Operation& operation, const Node& node) const;

    const Node& At(NodeIndex index) const { return m_nodes[index]; }
    /// The entry `below` places under the top.
    const Node& Below(std::size_t below) const { return At(m_pile[m_pile.size() - 1 - below]); }
    void Push(const Node& node);
    /// Takes `count` entries off and puts the node in their place.
    void Replace(std::size_t count, const Node& node);

    const VariableList& m_variables;
    std::vector<Node> m_nodes;
    std::vector<NodeIndex> m_pile;
    std::size_t m_variables_needed = 0;
};

Node ConstantNode(double constant) {
    Node node;
    node.constant = constant;
    return node;
}

void TreeBuilder::Push(const Node& node) {
    if (m_pile.size() == kLaidAside) {
        throw NoNumericForm();
    }
    m_pile.push_back(m_nodes.size());
    m_nodes.push_back(node);
}

void TreeBuilder::Replace(std::size_t count, const Node& node) {
    m_pile.resize(m_pile.size() - count);
    Push(node);
}

std::uint16_t TreeBuilder::PositionOf(const CVariable* variable) {
    std::optional<std::size_t> position;
    for (int k = 1; k <= m_variables.Count(); ++k) {
        if (&m_variables.Item(k) == variable) {
            if (position) {
                throw NoNumericForm();
            }
            position = static_cast<std::size_t>(k - 1);
        }
    }
    if (!position || *position >= NumericProgram::kMostVariables) {
        throw NoNumericForm();
    }
    m_variables_needed = std::max(m_variables_needed, *position + 1);
    return static_cast<std::uint16_t>(*position);
}

Node TreeBuilder::OperandNode(const Instruction& instruction) {
    Node node;
    if (instruction.variable) {
        node.kind = NodeKind::Variable;
        node.variable = PositionOf(instruction.variable.get());
        return node;
    }
    if (instruction.kind > OperandKind::NumericText) {
        throw NoNumericForm();
    }
    node.constant = instruction.number;
    if (instruction.kind == OperandKind::NumericText) {
        node.form = Form::Text;
        node.text = &instruction.text;
    }
    return node;
}

void TreeBuilder::Add(const Instruction& instruction) {
    switch (instruction.operation->action) {
        case Action::Load:
            Push(OperandNode(instruction));
            break;
        case Action::Constant:
            Push(ConstantNode(instruction.operation->constant));
            break;
        case Action::Unary:
            AddOperation(instruction, 1);
            break;
        case Action::Binary:
            AddOperation(instruction, 2);
            break;
        case Action::Ternary:
            AddOperation(instruction, 3);
            break;
        case Action::Compare:
            AddComparison(instruction);
            break;
        case Action::Smaller:
        case Action::Larger:
            AddExtreme(instruction);
            break;
        case Action::Choose:
            AddChoice(instruction);
            break;
        case Action::Step:
            AddStep();
            break;
        case Action::None:
            throw NoNumericForm();
    }
}

Node TreeBuilder::OperationNode(Token token, std::size_t operands, Form form) const {
    constexpr NodeKind kKinds[] = {NodeKind::Constant, NodeKind::Unary, NodeKind::Binary, NodeKind::Ternary};
    Node node;
    node.kind = kKinds[operands];
    node.form = form;
    node.token = token;
    std::copy(m_pile.end() - static_cast<std::ptrdiff_t>(operands), m_pile.end(), node.operands);
    return node;
}

void TreeBuilder::AddOperation(const Instruction& instruction, std::size_t operands) {
    const bool constant =
        !DependsOnAngleFactor(instruction.token) &&
        std::all_of(m_pile.end() - static_cast<std::ptrdiff_t>(operands), m_pile.end(),
                    [this](NodeIndex operand) { return At(operand).kind == NodeKind::Constant; });
    const Node node = OperationNode(instruction.token, operands);
    Replace(operands, constant ? ConstantNode(Folded(*instruction.operation, node)) : node);
}

/// The value of an operation on constants; what fails has no numeric form, since it fails each time.
double TreeBuilder::Folded(const Operation& operation, const Node& node) const {
    const double a = At(node.operands[0]).constant;
    const double b = At(node.operands[1]).constant;
    const double c = At(node.operands[2]).constant;
    try {
        switch (node.kind) {
            case NodeKind::Unary:
                return operation.unary(a, 1.0);
            case NodeKind::Binary:
                return operation.binary(a, b, 1.0);
            default:
                return operation.ternary(a, b, c);
        }
    } catch (const numeric::RuntimeFailure&) {
        throw NoNumericForm();
    }
}

bool TreeBuilder::ComparesTexts(const Node& a, const Node& b) const {
    if (a.form == Form::Number || b.form == Form::Number) {
        return false;
    }
    if (a.form == Form::Either || b.form == Form::Either) {
        throw NoNumericForm();
    }
    return true;
}

void TreeBuilder::AddComparison(const Instruction& instruction) {
    const Node& left = Below(1);
    const Node& right = Below(0);
    if (ComparesTexts(left, right)) {
        const bool holds = instruction.operation->holds(left.text->compare(*right.text));
        Replace(2, ConstantNode(holds ? kTrue : kFalse));
        return;
    }
    Replace(2, OperationNode(instruction.token, 2));
}

/// MIN and MAX keep an operand in its form.
void TreeBuilder::AddExtreme(const Instruction& instruction) {
    const Node& left = Below(1);
    const Node& right = Below(0);
    if (ComparesTexts(left, right)) {
        const int order = left.text->compare(*right.text);
        const bool keeps_left = instruction.operation->action == Action::Smaller ? order < 0 : order > 0;
        Replace(2, Node(keeps_left ? left : right));
        return;
    }
    const bool numbers = left.form == Form::Number && right.form == Form::Number;
    Replace(2, OperationNode(instruction.token, 2, numbers ? Form::Number : Form::Either));
}

void TreeBuilder::AddChoice(const Instruction& instruction) {
    const bool numbers = Below(1).form == Form::Number && Below(0).form == Form::Number;
    Replace(3, OperationNode(instruction.token, 3, numbers ? Form::Number : Form::Either));
}

/// STP1 takes two operands of its three.
void TreeBuilder::AddStep() {
    if (ComparesTexts(Below(1), Below(0))) {
        Replace(2, ConstantNode(Below(1).text->compare(*Below(0).text) >= 0 ? 1.0 : 0.0));
        return;
    }
    // True is -1 to an operator, and 1 here.
    Replace(2, OperationNode(Token::GreaterOrEqual, 2));
    Replace(1, OperationNode(Token::Abs, 1));
}

// --- The steps
// ---------------------------------------------------------------------------------------------------------

/// An operand that the step which uses it can hold.
struct FusedOperand {
    Source source = Source::Constant;
    std::uint16_t first = 0;
    std::uint16_t second = 0;
    double constant = 0.0;
};

class StepMaker {
  public:
    explicit StepMaker(const std::vector<Node>& nodes) : m_nodes(nodes) {}

    void Make(NodeIndex root) {
        Emit(At(root));
        Append(EndOfProgram());
    }
    std::vector<NumericStep>& Steps() { return m_steps; }
    std::size_t LaidAside() const { return m_most_laid_aside; }

  private:
    void Emit(const Node& node);
    void EmitUnary(const Node& node);
    void EmitNative(Native function, const Node& operand);
    void EmitPower(const Node& node);
    void EmitBinary(const Node& node);
    void EmitApart(const Node& node);
    void EmitTernary(const Node& node);

    std::optional<FusedOperand> Fused(const Node& node) const;
    std::optional<FusedOperand> FusedSingle(const Node& node) const;
    std::optional<FusedOperand> FusedPair(const Node& node) const;
    std::optional<FusedOperand> FusedWithConstant(Token token, const Node& left, double right) const;

    const Node& At(NodeIndex index) const { return m_nodes[index]; }
    const Node& Operand(const Node& node, std::size_t k) const { return At(node.operands[k]); }

    NumericStep& Append(StepFunctions functions) {
        NumericStep& step = m_steps.emplace_back();
        step.functions = functions;
        return step;
    }
    void AppendLoad(StepFunctions functions, const FusedOperand& operand) {
        SetOperand(Append(functions), operand);
    }
    static void SetOperand(NumericStep& step, const FusedOperand& operand) {
        step.first = operand.first;
        step.second = operand.second;
        step.constant = operand.constant;
    }
    /// The next load lays the result aside, in this entry.
    std::size_t LayAside() {
        m_pending = m_laid_aside++;
        m_most_laid_aside = std::max(m_most_laid_aside, m_laid_aside);
        return *m_pending;
    }
    /// The operand, after the result so far was laid aside if that is due.
    void Load(const FusedOperand& operand);

    const std::vector<Node>& m_nodes;
    std::vector<NumericStep> m_steps;
    std::size_t m_laid_aside = 0;
    std::size_t m_most_laid_aside = 0;
    std::optional<std::size_t> m_pending;
};

void StepMaker::Load(const FusedOperand& operand) {
    NumericStep& step = Append(LoadOf(operand.source, m_pending.has_value()));
    SetOperand(step, operand);
    step.aside = static_cast<std::uint16_t>(m_pending.value_or(0));
    m_pending.reset();
}

std::optional<FusedOperand> StepMaker::FusedSingle(const Node& node) const {
    if (node.kind == NodeKind::Constant) {
        return FusedOperand{.source = Source::Constant, .constant = node.constant};
    }
    if (node.kind == NodeKind::Variable) {
        return FusedOperand{.source = Source::Variable, .first = node.variable};
    }
    return std::nullopt;
}

/// A variable, maybe behind a minus, and a constant: the minus goes to the constant, which changes no bit.
std::optional<FusedOperand> StepMaker::FusedWithConstant(Token token, const Node& left, double right) const {
    const bool negated = left.kind == NodeKind::Unary && left.token == Token::UnaryMinus;
    const Node& variable = negated ? Operand(left, 0) : left;
    if (variable.kind != NodeKind::Variable) {
        return std::nullopt;
    }
    FusedOperand operand{.first = variable.variable, .constant = right};
    if (token == Token::Product || token == Token::Quotient) {
        operand.source = token == Token::Product ? Source::VariableTimesConstant : Source::VariableByConstant;
        operand.constant = negated ? -right : right;
        return operand;
    }
    if (negated) {
        return std::nullopt;
    }
    if (token == Token::Sum || token == Token::Difference) {
        operand.source = Source::VariablePlusConstant;
        operand.constant = token == Token::Sum ? right : -right;
        return operand;
    }
    if (token == Token::Power && right == 2.0) {
        operand.source = Source::VariableTimesVariable;
        operand.second = operand.first;
        return operand;
    }
    return std::nullopt;
}

std::optional<Source> SourceOfConstantFirst(Token token) {
    switch (token) {
        case Token::Sum:
            return Source::VariablePlusConstant;
        case Token::Product:
            return Source::VariableTimesConstant;
        case Token::Difference:
            return Source::ConstantMinusVariable;
        case Token::Quotient:
            return Source::ConstantByVariable;
        default:
            return std::nullopt;
    }
}

std::optional<Source> SourceOfVariables(Token token) {
    switch (token) {
        case Token::Sum:
            return Source::VariablePlusVariable;
        case Token::Difference:
            return Source::VariableMinusVariable;
        case Token::Product:
            return Source::VariableTimesVariable;
        case Token::Quotient:
            return Source::VariableByVariable;
        default:
            return std::nullopt;
    }
}

std::optional<FusedOperand> StepMaker::FusedPair(const Node& node) const {
    if (node.kind == NodeKind::Unary && node.token == Token::UnaryMinus) {
        return FusedWithConstant(Token::Product, Operand(node, 0), -1.0);
    }
    if (node.kind != NodeKind::Binary) {
        return std::nullopt;
    }
    const Node& left = Operand(node, 0);
    const Node& right = Operand(node, 1);
    if (right.kind == NodeKind::Constant) {
        return FusedWithConstant(node.token, left, right.constant);
    }
    if (right.kind != NodeKind::Variable || left.kind > NodeKind::Variable) {
        return std::nullopt;
    }
    const bool constant_first = left.kind == NodeKind::Constant;
    const auto source = constant_first ? SourceOfConstantFirst(node.token) : SourceOfVariables(node.token);
    if (!source) {
        return std::nullopt;
    }
    if (constant_first) {
        return FusedOperand{.source = *source, .first = right.variable, .constant = left.constant};
    }
    return FusedOperand{.source = *source, .first = left.variable, .second = right.variable};
}

std::optional<FusedOperand> StepMaker::Fused(const Node& node) const {
    const auto single = FusedSingle(node);
    return single ? single : FusedPair(node);
}

/// The node's value becomes the result.
void StepMaker::Emit(const Node& node) {
    if (const auto operand = Fused(node)) {
        Load(*operand);
        return;
    }
    switch (node.kind) {
        case NodeKind::Unary:
            EmitUnary(node);
            break;
        case NodeKind::Ternary:
            EmitTernary(node);
            break;
        default:
            EmitBinary(node);
            break;
    }
}

struct NativeFunction {
    Token token;
    Native function;
};

constexpr NativeFunction kNativeFunctions[] = {
    {Token::UnaryMinus, Native::Minus}, {Token::Abs, Native::Abs},     {Token::R, Native::Root},
    {Token::Ln, Native::Log},           {Token::Exp, Native::Exp},     {Token::Sen, Native::Sine},
    {Token::Cos, Native::Cosine},       {Token::Tan, Native::Tangent}, {Token::Atan, Native::ArcTangent},
};

void StepMaker::EmitUnary(const Node& node) {
    for (const NativeFunction& row : kNativeFunctions) {
        if (row.token == node.token) {
            EmitNative(row.function, Operand(node, 0));
            return;
        }
    }
    Emit(Operand(node, 0));
    Append(CallOfUnary()).operation = &OperationOf(node.token);
}

void StepMaker::EmitNative(Native function, const Node& operand) {
    if (const auto fused = Fused(operand)) {
        const StepFunctions functions = LoadOf(function, fused->source, m_pending.has_value());
        if (functions.value) {
            NumericStep& step = Append(functions);
            SetOperand(step, *fused);
            step.aside = static_cast<std::uint16_t>(m_pending.value_or(0));
            m_pending.reset();
            return;
        }
    }
    Emit(operand);
    Append(ApplyOf(function));
}

/// Whether the exponent is one that Power makes products of; the function that does so.
std::optional<Native> ProductOfExponent(const Node& exponent) {
    if (exponent.kind != NodeKind::Constant) {
        return std::nullopt;
    }
    if (exponent.constant == 2.0) {
        return Native::Square;
    }
    if (exponent.constant == 3.0) {
        return Native::Cube;
    }
    if (exponent.constant == 4.0) {
        return Native::Fourth;
    }
    return std::nullopt;
}

void StepMaker::EmitBinary(const Node& node) {
    const Node& left = Operand(node, 0);
    const Node& right = Operand(node, 1);
    if (node.token == Token::Power) {
        if (const auto function = ProductOfExponent(right)) {
            EmitNative(*function, left);
            return;
        }
    }
    const auto fused_right = Fused(right);
    if (fused_right && !FusedSingle(left)) {
        const StepFunctions functions = CombineOf(node.token, fused_right->source, false);
        if (functions.value) {
            Emit(left);
            AppendLoad(functions, *fused_right);
            return;
        }
    }
    if (const auto fused_left = Fused(left)) {
        const StepFunctions functions = CombineOf(node.token, fused_left->source, true);
        if (functions.value) {
            Emit(right);
            AppendLoad(functions, *fused_left);
            return;
        }
    }
    EmitApart(node);
}

/// Both operands by steps of their own.
void StepMaker::EmitApart(const Node& node) {
    Emit(Operand(node, 0));
    const std::size_t aside = LayAside();
    Emit(Operand(node, 1));
    const StepFunctions join = JoinOf(node.token);
    NumericStep& step = Append(join.value ? join : CallOfBinary());
    step.aside = static_cast<std::uint16_t>(aside);
    step.operation = &OperationOf(node.token);
    --m_laid_aside;
}

void StepMaker::EmitTernary(const Node& node) {
    Emit(Operand(node, 0));
    const std::size_t aside = LayAside();
    Emit(Operand(node, 1));
    LayAside();
    Emit(Operand(node, 2));
    Append(TernaryOf(node.token)).aside = static_cast<std::uint16_t>(aside);
    m_laid_aside -= 2;
}

}  // namespace

std::optional<CompiledSteps> CompileNumeric(const Program& program, const VariableList& variables) {
    try {
        const TreeBuilder tree(program, variables);
        StepMaker maker(tree.Nodes());
        maker.Make(tree.Root());
        return CompiledSteps{std::move(maker.Steps()), tree.VariablesNeeded(), maker.LaidAside()};
    } catch (const NoNumericForm&) {
        return std::nullopt;
    }
}

}  // namespace tavrelo::expr
