#include "views/graph/TreeLines.h"

#include "views/ParagraphStatuses.h"
#include "views/graph/GraphNodes.h"

QStringList treeLines(const QList<TreeNode> &tree, const Variables &variables)
{
    const ParagraphStatuses statuses = classifyParagraphs(variables);
    QStringList lines;
    QList<int> waiting{0}; // the next one last
    while (!waiting.isEmpty()) {
        const TreeNode &node = tree.at(waiting.takeLast());
        QStringList columns{QString::number(node.depth), QString::number(node.number),
                            statusName(statuses.status.at(node.number))};
        if (node.kind != GraphNode::Kind::Whole)
            columns.append(kindName(node.kind));
        lines.append(columns.join(u'\t'));
        for (int child = node.children - 1; child >= 0; --child)
            waiting.append(node.firstChild + child);
    }
    return lines;
}
