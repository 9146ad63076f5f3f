<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>BackHints</name>
    <message>
        <source>This lesson goes on in “%1”.</source>
        <extracomment>%1 is the title of a window; a sentence with what to do follows.</extracomment>
        <translation>课程在“%1”窗口中继续。</translation>
    </message>
    <message>
        <source>The game lies over what this step is about. Click “Esc” below it until it closes.</source>
        <translation>游戏挡住了这一步要用的地方。请点击游戏下方的“Esc”，直到游戏关闭。</translation>
    </message>
    <message>
        <source>The game is closed already.</source>
        <translation>游戏已经关闭了。</translation>
    </message>
    <message>
        <source>Press Esc: the menu closes.</source>
        <translation>按 Esc 键，菜单就会关闭。</translation>
    </message>
    <message>
        <source>Press Esc: this window closes.</source>
        <translation>按 Esc 键，这个窗口就会关闭。</translation>
    </message>
    <message>
        <source>Click “%1”.</source>
        <extracomment>%1 is the text of a button that closes a window.</extracomment>
        <translation>请点击“%1”。</translation>
    </message>
    <message>
        <source>Double-click “%1” again.</source>
        <extracomment>%1 is what stands in the row of a list.</extracomment>
        <translation>请再次双击“%1”。</translation>
    </message>
    <message>
        <source>Right-click “%1” again.</source>
        <extracomment>%1 is what stands in the row of a list, or the name of a part of the window.</extracomment>
        <translation>请再次右键点击“%1”。</translation>
    </message>
    <message>
        <source>Click “%1” again.</source>
        <extracomment>%1 is the text of a button, tab or row of a list.</extracomment>
        <translation>请再次点击“%1”。</translation>
    </message>
    <message>
        <source>Something is different from what this step needs. Click “Put it back” in the lesson strip.</source>
        <translation>现在的状态和这一步需要的不一样。请点击课程栏中的“恢复原样”。</translation>
    </message>
    <message>
        <source>Wait a moment: this window closes by itself.</source>
        <translation>请稍候：这个窗口会自行关闭。</translation>
    </message>
</context>
<context>
    <name>Battle</name>
    <message>
        <source>There is no troop %1, so there is nobody to fight. Choose a troop that the database has.</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>没有敌群 %1，因此没有对手。请选择数据库中有的敌群。</translation>
    </message>
    <message>
        <source>The troop “%1” has a member that is enemy %2, which the database does not have.</source>
        <extracomment>%1 is the name of a troop, %2 a number.</extracomment>
        <translation>敌群“%1”中有数据库里不存在的敌人 %2。</translation>
    </message>
    <message>
        <source>The actions of “%1” name skills that the database does not have, so it just attacks.</source>
        <extracomment>%1 is the name of an enemy.</extracomment>
        <translation>“%1”的行动模式所用的技能在数据库中不存在，因此它只会攻击。</translation>
    </message>
    <message>
        <source>The troop “%1” has no members, so there is nobody to fight.</source>
        <extracomment>%1 is the name of a troop.</extracomment>
        <translation>敌群“%1”没有成员，因此没有对手。</translation>
    </message>
    <message>
        <source>For %1 turns nobody in this battle could act, so it was ended. Give the states that forbid to act an end.</source>
        <translation>这场战斗连续 %1 回合无人能行动，因此已结束。请为禁止行动的状态设置结束条件。</translation>
    </message>
</context>
<context>
    <name>BattleMenu</name>
    <message>
        <source>Attack</source>
        <translation>攻击</translation>
    </message>
    <message>
        <source>Hits an enemy with the weapon.</source>
        <translation>用武器攻击一个敌人。</translation>
    </message>
    <message>
        <source>Uses a skill.</source>
        <translation>使用技能。</translation>
    </message>
    <message>
        <source>No skills yet.</source>
        <translation>还没有技能。</translation>
    </message>
    <message>
        <source>Uses an item from the bag.</source>
        <translation>使用背包里的物品。</translation>
    </message>
    <message>
        <source>The bag is empty.</source>
        <translation>背包是空的。</translation>
    </message>
    <message>
        <source>Guard</source>
        <translation>防御</translation>
    </message>
    <message>
        <source>Halves the damage of this turn.</source>
        <translation>本回合受到的伤害减半。</translation>
    </message>
    <message>
        <source>Flee</source>
        <translation>逃跑</translation>
    </message>
    <message>
        <source>All of you try to get away.</source>
        <translation>全队一起尝试逃跑。</translation>
    </message>
    <message>
        <source>There is no way out of this battle.</source>
        <translation>这场战斗无法逃跑。</translation>
    </message>
    <message>
        <source>Not enough MP.</source>
        <translation>MP不足。</translation>
    </message>
    <message>
        <source>This cannot be used here.</source>
        <translation>这里不能使用。</translation>
    </message>
    <message>
        <source>Whom?</source>
        <translation>对谁？</translation>
    </message>
</context>
<context>
    <name>BattleWords</name>
    <message>
        <source>%1 attacks!</source>
        <extracomment>%1 is somebody&apos;s name.</extracomment>
        <translation>%1发动攻击！</translation>
    </message>
    <message>
        <source>%1 uses %2!</source>
        <extracomment>%1 is somebody&apos;s name, %2 that of a skill or an item.</extracomment>
        <translation>%1使用了%2！</translation>
    </message>
    <message>
        <source>%1 guards.</source>
        <extracomment>%1 is somebody&apos;s name.</extracomment>
        <translation>%1正在防御。</translation>
    </message>
    <message>
        <source>%1 takes %2 damage.</source>
        <extracomment>%1 is somebody&apos;s name, %2 a number of points.</extracomment>
        <translation>%1受到%2点伤害！</translation>
    </message>
    <message>
        <source>%1 recovers %2 HP.</source>
        <extracomment>%1 is somebody&apos;s name, %2 a number of points.</extracomment>
        <translation>%1恢复了%2点HP！</translation>
    </message>
    <message>
        <source>%1 loses %2 MP.</source>
        <extracomment>%1 is somebody&apos;s name, %2 a number of points.</extracomment>
        <translation>%1失去了%2点MP！</translation>
    </message>
    <message>
        <source>%1 recovers %2 MP.</source>
        <extracomment>%1 is somebody&apos;s name, %2 a number of points.</extracomment>
        <translation>%1恢复了%2点MP！</translation>
    </message>
    <message>
        <source>%1 learns %2!</source>
        <extracomment>%1 is somebody&apos;s name, %2 that of a skill.</extracomment>
        <translation>%1学会了%2！</translation>
    </message>
    <message>
        <source>Nothing happens to %1.</source>
        <extracomment>%1 is somebody&apos;s name.</extracomment>
        <translation>对%1没有任何效果。</translation>
    </message>
    <message>
        <source>%1 cannot use %2 now.</source>
        <extracomment>%1 is somebody&apos;s name, %2 that of a skill.</extracomment>
        <translation>%1现在无法使用%2。</translation>
    </message>
    <message>
        <source>You get away safely!</source>
        <translation>成功逃走了！</translation>
    </message>
    <message>
        <source>You cannot get away!</source>
        <translation>没能逃掉！</translation>
    </message>
    <message>
        <source>%1 falls!</source>
        <extracomment>%1 is the name of somebody who has no HP left.</extracomment>
        <translation>%1倒下了！</translation>
    </message>
    <message>
        <source>%1 cannot act.</source>
        <extracomment>%1 is somebody&apos;s name.</extracomment>
        <translation>%1无法行动。</translation>
    </message>
    <message>
        <source>%1 appears!</source>
        <extracomment>%1 is the name of an enemy.</extracomment>
        <translation>%1出现了！</translation>
    </message>
    <message>
        <source>You have won!</source>
        <translation>战斗胜利！</translation>
    </message>
    <message>
        <source>You get %1.</source>
        <extracomment>%1 is an amount of money with its unit.</extracomment>
        <translation>获得%1。</translation>
    </message>
    <message>
        <source>You find %1 × %2.</source>
        <extracomment>%1 is the name of an item, %2 how many of it.</extracomment>
        <translation>找到%1×%2。</translation>
    </message>
    <message>
        <source>%1 gets %2 EXP.</source>
        <extracomment>%1 is somebody&apos;s name, %2 a number of points of experience.</extracomment>
        <translation>%1获得%2点经验值。</translation>
    </message>
    <message>
        <source>%1 is now level %2!</source>
        <extracomment>%1 is somebody&apos;s name, %2 a number.</extracomment>
        <translation>%1升到%2级了！</translation>
    </message>
    <message>
        <source>You have been defeated…</source>
        <translation>战斗失败了……</translation>
    </message>
</context>
<context>
    <name>DataFiles</name>
    <message>
        <source>%1 Nothing is lost: the editor keeps all your changes. Make room on the disk, or permit writing, and save again.</source>
        <extracomment>%1 is a sentence that names a file and says why it cannot be written.</extracomment>
        <translation>%1所有改动都还保留在编辑器里，没有丢失。请腾出磁盘空间，或允许写入，然后重新保存。</translation>
    </message>
    <message>
        <source>The project&apos;s file “%1” is damaged at line %2 (%3). Mend that line, or put a whole copy of the file in its place, and open the project again.</source>
        <extracomment>%1 is a file&apos;s path, %2 the number of a line, %3 what the JSON reader says of it.</extracomment>
        <translation>项目文件“%1”的第 %2 行已损坏（%3）。请修好这一行，或换上完好的文件副本，然后重新打开项目。</translation>
    </message>
</context>
<context>
    <name>EquipScene</name>
    <message>
        <source>Take it off.</source>
        <translation>卸下装备。</translation>
    </message>
    <message>
        <source>Nothing is worn here.</source>
        <translation>这里没有装备。</translation>
    </message>
</context>
<context>
    <name>GameOverScene</name>
    <message>
        <source>Game over</source>
        <translation>游戏结束</translation>
    </message>
    <message>
        <source>Press Enter to return to the title.</source>
        <translation>按 Enter 键返回标题。</translation>
    </message>
</context>
<context>
    <name>ItemScene</name>
    <message>
        <source>The bag is empty.</source>
        <translation>背包是空的。</translation>
    </message>
    <message>
        <source>Put it on in the menu, under Equipment.</source>
        <translation>可在菜单的“装备”中穿戴。</translation>
    </message>
    <message>
        <source>It would do nothing.</source>
        <translation>使用了也没有效果。</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Save the changes in “%1”?</source>
        <extracomment>%1 is the name of the open project.</extracomment>
        <translation>要保存“%1”中的更改吗？</translation>
    </message>
    <message>
        <source>What you have changed since you saved it last is lost otherwise.</source>
        <translation>如果不保存，上次保存之后的更改将会丢失。</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <extracomment>A button: save the project, then leave it.</extracomment>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t save</source>
        <extracomment>A button: leave the project without saving it.</extracomment>
        <translation>不保存(&amp;D)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>A button: go on with the project as it is.</extracomment>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>LessonChooser</name>
    <message>
        <source>Start</source>
        <extracomment>A button: begin the lesson.</extracomment>
        <translation>开始</translation>
    </message>
    <message>
        <source>Go on</source>
        <extracomment>A button: go on with the lesson where it was left.</extracomment>
        <translation>继续</translation>
    </message>
    <message>
        <source>Lessons</source>
        <translation>课程</translation>
    </message>
    <message>
        <source>Lesson</source>
        <translation>课程</translation>
    </message>
    <message>
        <source>What you do in it</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Length</source>
        <extracomment>Head of a column: how long a lesson takes.</extracomment>
        <translation>时长</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Head of a column: how far the person has come in a lesson.</extracomment>
        <translation>进度</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>A button: leave the list of lessons.</extracomment>
        <translation>关闭</translation>
    </message>
    <message>
        <source>✓ done</source>
        <extracomment>The person has played the lesson to its end.</extracomment>
        <translation>✓ 已完成</translation>
    </message>
    <message>
        <source>step %1 of %2</source>
        <extracomment>The lesson goes on here: %1 is the number of the step, %2 how many there are.</extracomment>
        <translation>第 %1 步，共 %2 步</translation>
    </message>
    <message>
        <source>not there yet</source>
        <extracomment>The lesson does not exist yet.</extracomment>
        <translation>尚未推出</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <extracomment>The lesson is not in the program.</extracomment>
        <translation>无法打开</translation>
    </message>
    <message>
        <source>%1 min</source>
        <extracomment>How long a lesson takes.</extracomment>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>Start again</source>
        <extracomment>A button: begin the lesson anew.</extracomment>
        <translation>重新开始</translation>
    </message>
</context>
<context>
    <name>LessonCourse</name>
    <message>
        <source>“%1” cannot go on where it was left: the project in which you were is gone or has changed. It begins again.</source>
        <extracomment>%1 is the title of a lesson.</extracomment>
        <translation>“%1”无法从离开的地方继续：当时使用的项目不见了，或者已经改变。课程将从头开始。</translation>
    </message>
</context>
<context>
    <name>LessonProgress</name>
    <message>
        <source>Your progress cannot be read from “%1” (%2). Permit reading the file and start the editor again.</source>
        <extracomment>%1 is the path of a file, %2 the system&apos;s reason.</extracomment>
        <translation>无法从“%1”读取你的进度（%2）。请允许读取该文件，然后重新启动编辑器。</translation>
    </message>
    <message>
        <source>The file “%1” with your progress is damaged, so the lessons begin anew. It is kept as “%2”.</source>
        <extracomment>%1 and %2 are paths of files.</extracomment>
        <translation>保存进度的文件“%1”已损坏，课程将从头开始。该文件已另存为“%2”。</translation>
    </message>
    <message>
        <source>Your progress cannot be kept in “%1” (%2). Make room on the disk, or permit writing. You can play on meanwhile.</source>
        <extracomment>%1 is the path of a file, %2 the system&apos;s reason.</extracomment>
        <translation>无法把进度保存到“%1”（%2）。请腾出磁盘空间或允许写入。你可以先继续上课。</translation>
    </message>
</context>
<context>
    <name>LessonProject</name>
    <message>
        <source>The data files of the lesson have not come, so “%1” is without them. Start the lesson again.</source>
        <extracomment>%1 is the name of the project.</extracomment>
        <translation>没有收到本课的数据文件，所以项目“%1”里没有这些文件。请重新开始本课。</translation>
    </message>
</context>
<context>
    <name>LessonStrip</name>
    <message>
        <source>Lessons…</source>
        <extracomment>Opens the list of lessons.</extracomment>
        <translation>课程…</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>重新开始</translation>
    </message>
    <message>
        <source>Leave lesson</source>
        <translation>离开课程</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>One step back.</extracomment>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Next</source>
        <extracomment>As on the button beside the bubble.</extracomment>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Yes</source>
        <extracomment>As on the button beside the bubble.</extracomment>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <extracomment>As on the button beside the bubble.</extracomment>
        <translation>否</translation>
    </message>
    <message>
        <source>Show me</source>
        <extracomment>Help: the arrow shows the place again; pressed once more, the step is done for the person.</extracomment>
        <translation>演示给我看</translation>
    </message>
    <message>
        <source>Put it back</source>
        <extracomment>Makes everything as it was when the step began.</extracomment>
        <translation>恢复原样</translation>
    </message>
    <message>
        <source>Skip step</source>
        <extracomment>The step is done for the person, and the lesson goes on.</extracomment>
        <translation>跳过这一步</translation>
    </message>
    <message>
        <source>Next lesson</source>
        <translation>下一课</translation>
    </message>
    <message>
        <source>Progress of the lesson</source>
        <translation>课程进度</translation>
    </message>
    <message>
        <source>Picture of dragging: press the mouse button, move, let go</source>
        <translation>拖动示意图：按下鼠标键，移动，松开</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>How far the lesson is: %1 is the number of the step, %2 how many there are.</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation>大约还需 %1 分钟</translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>大约还需 1 分钟</translation>
    </message>
</context>
<context>
    <name>MenuScene</name>
    <message>
        <source>There is nobody in the party.</source>
        <translation>队伍里没有人。</translation>
    </message>
    <message>
        <source>There is no place to save: save the project in the editor first.</source>
        <translation>没有存档的位置：请先在编辑器中保存项目。</translation>
    </message>
    <message>
        <source>Look into the bag.</source>
        <translation>查看背包。</translation>
    </message>
    <message>
        <source>Use a skill.</source>
        <translation>使用技能。</translation>
    </message>
    <message>
        <source>Equipment</source>
        <translation>装备</translation>
    </message>
    <message>
        <source>Change weapon and armor.</source>
        <translation>更换武器和防具。</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>See what somebody can do.</source>
        <translation>查看队员的能力。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>存档</translation>
    </message>
    <message>
        <source>Save the game.</source>
        <translation>保存游戏进度。</translation>
    </message>
    <message>
        <source>To the title</source>
        <translation>返回标题</translation>
    </message>
    <message>
        <source>Leave this game. What is not saved is lost.</source>
        <translation>离开游戏。未存档的进度会丢失。</translation>
    </message>
    <message>
        <source>Time %1</source>
        <extracomment>How long the game has been played; %1 is a time.</extracomment>
        <translation>时间 %1</translation>
    </message>
    <message>
        <source>Leave this game? What is not saved is lost.</source>
        <translation>要离开游戏吗？未存档的进度会丢失。</translation>
    </message>
</context>
<context>
    <name>NameScene</name>
    <message>
        <source>ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-&apos;. </source>
        <extracomment>The letters from which a name can be put together, in the order in which they are shown, 10 in a row. Take those that names in your language are written with.</extracomment>
        <translation>小大明华文国志海天宇晨阳子安平乐宁林云星月雨雪风花春夏秋冬梅兰竹菊玉珠金银石山川江河湖龙虎凤鹤燕勇强军建东西南北中美丽红青白黑心思爱欣慧静雅婷娜莉ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz·</translation>
    </message>
    <message>
        <source>Type a name, or choose its letters.</source>
        <translation>请输入名字，或逐字选择。</translation>
    </message>
    <message>
        <source>A name has %1 letters at most.</source>
        <extracomment>%1 is a number.</extracomment>
        <translation>名字最多 %1 个字。</translation>
    </message>
    <message>
        <source>Type, or choose letters. “Done” takes the name.</source>
        <translation>可用键盘输入或选字，选“完成”确定。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名字</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>NewProject</name>
    <message>
        <source>Choose another name, without “/”.</source>
        <extracomment>Beside the name of a new project, which cannot be that of a folder.</extracomment>
        <translation>请换一个不含“/”的名称。</translation>
    </message>
    <message>
        <source>No folder can be made at this place.</source>
        <extracomment>Below the place of a new project; there is little room.</extracomment>
        <translation>无法在此位置创建文件夹。</translation>
    </message>
</context>
<context>
    <name>PracticeEditor</name>
    <message>
        <source>Restart</source>
        <extracomment>A button: start the guide again.</extracomment>
        <translation>重新启动</translation>
    </message>
    <message>
        <source>Go on without</source>
        <extracomment>A button: go on without the guide.</extracomment>
        <translation>不使用向导继续</translation>
    </message>
    <message>
        <source>Something went wrong.</source>
        <translation>出错了。</translation>
    </message>
    <message>
        <source>The editor cannot listen on “%1”: %2. Start it again with another --key, or without one.</source>
        <extracomment>%1 is the name of a local server, %2 the system&apos;s reason.</extracomment>
        <translation>无法在“%1”上等待连接（%2）。请换一个 --key，或不用 --key，重新启动编辑器。</translation>
    </message>
    <message>
        <source>The guide “%1” does not start: %2. Build the target Tutorial, or name the program with --companion.</source>
        <extracomment>The guide is the companion program; %1 is its path, %2 the system&apos;s reason.</extracomment>
        <translation>无法启动向导“%1”（%2）。请构建目标 Tutorial，或用 --companion 指定程序。</translation>
    </message>
    <message>
        <source>“%1” cannot be played: its step %2 has the word “%3”, which this editor does not know. Install the newest version of the editor, or tell whoever wrote the lesson.</source>
        <extracomment>%1 is the title of a lesson, %2 the number of one of its steps, %3 a word of its script.</extracomment>
        <translation>无法播放“%1”：第 %2 步里有本编辑器不认识的词“%3”。请安装最新版编辑器，或告诉课程的作者。</translation>
    </message>
    <message>
        <source>The guide ended unexpectedly. Your project is not affected.</source>
        <translation>向导意外退出了。你的项目不受影响。</translation>
    </message>
    <message>
        <source>Restart it?</source>
        <translation>要重新启动它吗？</translation>
    </message>
    <message>
        <source>Restart it? The lesson goes on at the step where you are.</source>
        <translation>要重新启动它吗？课程会从当前这一步继续。</translation>
    </message>
    <message>
        <source>What there was when this step began cannot be brought back: the project in which you were is gone or cannot be read. Start the lesson again.</source>
        <translation>无法恢复到这一步开始时的状态：你使用的项目已不存在或无法读取。请重新开始本课。</translation>
    </message>
</context>
<context>
    <name>PraiseCard</name>
    <message>
        <source>Next lesson</source>
        <translation>下一课</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>ProjectFolder</name>
    <message>
        <source>A project cannot have the name “%1”: its folder is named after it. Choose another name, without “/”.</source>
        <extracomment>%1 is the name that the person gave a new project.</extracomment>
        <translation>项目不能叫“%1”，因为项目文件夹也用这个名称。请换一个不含“/”的名称。</translation>
    </message>
    <message>
        <source>The project cannot hold the file “%1”: it would lie outside of the project&apos;s folder.</source>
        <extracomment>%1 is a path inside the project.</extracomment>
        <translation>项目不能包含文件“%1”，因为该文件会位于项目文件夹之外。</translation>
    </message>
    <message>
        <source>The project&apos;s folder cannot be made in “%1” (%2). Choose another place.</source>
        <extracomment>%1 is a folder, %2 the system&apos;s reason.</extracomment>
        <translation>无法在“%1”里建立项目文件夹（%2）。请换一个位置。</translation>
    </message>
    <message>
        <source>The project&apos;s folder “%1” cannot be made. Choose another name or place.</source>
        <extracomment>%1 is the folder&apos;s path.</extracomment>
        <translation>无法建立项目文件夹“%1”。请换一个名称或位置。</translation>
    </message>
    <message>
        <source>The project&apos;s file “%1” cannot be written (%2).</source>
        <extracomment>%1 is the file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>无法写入项目中的文件“%1”（%2）。</translation>
    </message>
    <message>
        <source>“%1” holds no project: it has no data files. Choose another folder.</source>
        <extracomment>%1 is a folder.</extracomment>
        <translation>“%1”里没有数据文件，不是项目。请选择别的文件夹。</translation>
    </message>
    <message>
        <source>The project&apos;s file “%1” cannot be read (%2). Permit reading it, and open the project again.</source>
        <extracomment>%1 is the file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>无法读取项目中的文件“%1”（%2）。请允许读取它，然后重新打开项目。</translation>
    </message>
    <message>
        <source>The project&apos;s folder “%1” cannot be read: you are not permitted to list its files. Permit it, and open the project again.</source>
        <extracomment>%1 is a folder.</extracomment>
        <translation>无法读取项目文件夹“%1”：你没有列出其中文件的权限。请授予权限，然后重新打开项目。</translation>
    </message>
</context>
<context>
    <name>SaveFiles</name>
    <message>
        <source>This saved game cannot be read: “%1”.</source>
        <extracomment>%1 is a file&apos;s path.</extracomment>
        <translation>无法读取此存档：“%1”。</translation>
    </message>
    <message>
        <source>This saved game is damaged and cannot be loaded.</source>
        <translation>此存档已损坏，无法读取。</translation>
    </message>
    <message>
        <source>There is no place to save: save the project in the editor first.</source>
        <translation>没有存档的位置：请先在编辑器中保存项目。</translation>
    </message>
    <message>
        <source>The game could not be saved (%1). What was saved before is still there.</source>
        <extracomment>%1 is the system&apos;s reason.</extracomment>
        <translation>存档失败（%1）。之前的存档仍然保留。</translation>
    </message>
</context>
<context>
    <name>SaveScene</name>
    <message>
        <source>Save</source>
        <translation>存档</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续游戏</translation>
    </message>
    <message>
        <source>Nothing is saved here yet.</source>
        <translation>这里还没有存档。</translation>
    </message>
    <message>
        <source>There is no place to save: save the project in the editor first.</source>
        <translation>没有存档的位置：请先在编辑器中保存项目。</translation>
    </message>
    <message>
        <source>Save here?</source>
        <translation>要存在这里吗？</translation>
    </message>
    <message>
        <source>Go on from here?</source>
        <translation>要从这里继续吗？</translation>
    </message>
    <message>
        <source>The game is saved.</source>
        <translation>已存档。</translation>
    </message>
    <message>
        <source>Replace what is saved here?</source>
        <translation>要覆盖这里的存档吗？</translation>
    </message>
</context>
<context>
    <name>ShopScene</name>
    <message>
        <source>This shop only sells.</source>
        <translation>这家店不收购物品。</translation>
    </message>
    <message>
        <source>Buy</source>
        <translation>购买</translation>
    </message>
    <message>
        <source>What would you like?</source>
        <translation>想买什么？</translation>
    </message>
    <message>
        <source>Sell</source>
        <translation>出售</translation>
    </message>
    <message>
        <source>Sell something from your bag.</source>
        <translation>出售背包里的物品。</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>离开</translation>
    </message>
    <message>
        <source>Come again!</source>
        <translation>欢迎再来！</translation>
    </message>
    <message>
        <source>You do not have enough money.</source>
        <translation>钱不够。</translation>
    </message>
    <message>
        <source>You cannot carry more of this.</source>
        <translation>不能再多带了。</translation>
    </message>
    <message>
        <source>There is nothing for sale.</source>
        <translation>没有商品。</translation>
    </message>
    <message>
        <source>The shop does not buy this.</source>
        <translation>这家店不收购这个。</translation>
    </message>
    <message>
        <source>The bag is empty.</source>
        <translation>背包是空的。</translation>
    </message>
    <message>
        <source>How many?</source>
        <translation>数量？</translation>
    </message>
    <message>
        <source>In the bag: %1</source>
        <extracomment>%1 is how many of a thing are in the bag.</extracomment>
        <translation>持有：%1</translation>
    </message>
    <message>
        <source>Left and right: by 1. Up and down: by 10.</source>
        <translation>左右键增减 1 个，上下键增减 10 个。</translation>
    </message>
</context>
<context>
    <name>SkillScene</name>
    <message>
        <source>No skills yet.</source>
        <translation>还没有技能。</translation>
    </message>
    <message>
        <source>%1 cannot use skills now.</source>
        <extracomment>%1 is somebody&apos;s name.</extracomment>
        <translation>%1现在不能使用技能。</translation>
    </message>
    <message>
        <source>Not enough MP.</source>
        <translation>MP不足。</translation>
    </message>
    <message>
        <source>It would do nothing.</source>
        <translation>使用了也没有效果。</translation>
    </message>
</context>
<context>
    <name>StatusScene</name>
    <message>
        <source>%1 EXP to the next level</source>
        <extracomment>%1 is a number of points of experience.</extracomment>
        <translation>距下一级还需经验值 %1</translation>
    </message>
    <message>
        <source>No higher level.</source>
        <translation>等级已达上限。</translation>
    </message>
    <message>
        <source>Left and right: the others</source>
        <translation>左右键：查看其他队员</translation>
    </message>
</context>
<context>
    <name>StripControl</name>
    <message>
        <source>The guide does not answer.</source>
        <translation>向导没有响应。</translation>
    </message>
    <message>
        <source>In the lessons you make a game step by step. Choose one with “Lessons…”.</source>
        <extracomment>&quot;Lessons…&quot; is a button.</extracomment>
        <translation>在课程里，你会一步一步地做出一个游戏。请用“课程…”选择一课。</translation>
    </message>
    <message>
        <source>The lesson is being opened…</source>
        <translation>正在打开课程…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened. Choose another lesson with “Lessons…”.</source>
        <extracomment>%1 is the title of a lesson. &quot;Lessons…&quot; is a button.</extracomment>
        <translation>无法打开“%1”。请用“课程…”选择另一课。</translation>
    </message>
    <message>
        <source>You have left the lesson. It goes on at step %1: choose it with “Lessons…”, then “Go on”.</source>
        <extracomment>&quot;Lessons…&quot; and &quot;Go on&quot; are buttons. %1 is the number of a step.</extracomment>
        <translation>你已离开课程。用“课程…”选择这一课，再点击“继续”，就会从第 %1 步接着进行。</translation>
    </message>
    <message>
        <source>You have left the lesson. Choose another one with “Lessons…”.</source>
        <translation>你已离开课程。可以用“课程…”选择另一课。</translation>
    </message>
    <message>
        <source>The guide is gone. To go on with a lesson, choose it with “Lessons…”.</source>
        <extracomment>The guide is the companion program. &quot;Lessons…&quot; is a button.</extracomment>
        <translation>向导已经退出。要继续上课，请用“课程…”选择课程。</translation>
    </message>
    <message>
        <source>Well done! You have finished “%1”.</source>
        <extracomment>%1 is the title of a lesson.</extracomment>
        <translation>做得好！你完成了“%1”。</translation>
    </message>
    <message>
        <source>Start again</source>
        <extracomment>A button: begin the lesson anew.</extracomment>
        <translation>重新开始</translation>
    </message>
    <message>
        <source>Start “%1” again from the beginning? You are at step %2.</source>
        <extracomment>%1 is the title of a lesson, %2 the number of a step.</extracomment>
        <translation>要从头重新开始“%1”吗？你现在在第 %2 步。</translation>
    </message>
    <message>
        <source>What you have made so far stays in your project.</source>
        <translation>到目前为止做好的内容会留在项目里。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>A button: nothing changes.</extracomment>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>Terms</name>
    <message>
        <source>G</source>
        <extracomment>The unit of money in a game, behind the amount.</extracomment>
        <translation>G</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the words of a list.</extracomment>
        <translation>、</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>等级</translation>
    </message>
    <message>
        <source>EXP</source>
        <translation>经验值</translation>
    </message>
    <message>
        <source>Attack</source>
        <translation>攻击力</translation>
    </message>
    <message>
        <source>Defense</source>
        <translation>防御力</translation>
    </message>
    <message>
        <source>Agility</source>
        <translation>敏捷</translation>
    </message>
    <message>
        <source>Weapon</source>
        <translation>武器</translation>
    </message>
    <message>
        <source>Armor</source>
        <translation>防具</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>物品</translation>
    </message>
    <message>
        <source>Skills</source>
        <translation>技能</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>TestPlay</name>
    <message>
        <source>The file is missing; its entries are not there.</source>
        <translation>文件不存在，其中的数据视为没有。</translation>
    </message>
    <message>
        <source>The file is no list of entries; they are not there.</source>
        <translation>文件不是数据列表，其中的数据视为没有。</translation>
    </message>
    <message>
        <source>The file is missing or no object: party and start are not known.</source>
        <translation>文件不存在或格式不正确：无法得知队伍和起始位置。</translation>
    </message>
    <message>
        <source>The game starts on map %1, and there is none.</source>
        <translation>游戏从地图 %1 开始，但没有这张地图。</translation>
    </message>
    <message>
        <source>The game starts at %1, %2, outside of its map; it starts at its edge.</source>
        <translation>起始位置 %1, %2 在地图之外，将从地图边缘开始。</translation>
    </message>
    <message>
        <source>The party has nobody in it.</source>
        <translation>队伍里没有人。</translation>
    </message>
    <message>
        <source>The event stands at %1, %2, outside of its map.</source>
        <translation>事件的位置 %1, %2 在地图之外。</translation>
    </message>
    <message>
        <source>The event has no pages, so it is never there.</source>
        <translation>事件没有任何事件页，因此不会出现。</translation>
    </message>
    <message>
        <source>The page has no list of commands: it does nothing.</source>
        <translation>该事件页没有指令列表，什么也不会发生。</translation>
    </message>
    <message>
        <source>The page begins by trigger %1, which there is not: it begins when it is asked.</source>
        <translation>事件页的触发方式 %1 不存在，将在对话时触发。</translation>
    </message>
    <message>
        <source>The page moves in way %1, which there is not: the event stays.</source>
        <translation>事件页的移动方式 %1 不存在，事件不会移动。</translation>
    </message>
    <message>
        <source>The map has %1 numbers of tiles; %2 x %3 cells in %4 layers need %5. Cells without a number are empty, and nobody can walk there.</source>
        <translation>地图有 %1 个图块编号，而 %2 x %3 格、%4 个图层需要 %5 个。没有编号的格子为空，无法通行。</translation>
    </message>
    <message>
        <source>%1, %2 in layer %3</source>
        <comment>place of a cell on a map</comment>
        <translation>图层 %3 的 %1, %2</translation>
    </message>
    <message>
        <source>The map has tiles that are not there: %1 in all, the first one at %2. Their cells are empty; draw them anew.</source>
        <translation>地图上有不存在的图块：共 %1 个，第一个在%2。这些格子为空，请重新绘制。</translation>
    </message>
    <message>
        <source>The map “%1” has tile set %2, which is not there: its tiles have their usual colours.</source>
        <translation>地图“%1”使用的图块组 %2 不存在，图块将显示为通常的颜色。</translation>
    </message>
    <message>
        <source>The skill “%1” shows animation %2, which is not there.</source>
        <translation>技能“%1”要播放的动画 %2 不存在。</translation>
    </message>
    <message>
        <source>The animation “%1” has %2 pictures; it has to have 1 to %3.</source>
        <translation>动画“%1”的帧数为 %2，应为 1 到 %3。</translation>
    </message>
    <message>
        <source>The actor “%1” has class %2, which is not there: no HP and MP grow, and no skills are learned.</source>
        <translation>角色“%1”的职业 %2 不存在：HP 和 MP 不会成长，也不会学会技能。</translation>
    </message>
    <message>
        <source>The actor “%1” begins with weapon %2, which is not there.</source>
        <translation>角色“%1”初始装备的武器 %2 不存在。</translation>
    </message>
    <message>
        <source>The actor “%1” begins with armor %2, which is not there.</source>
        <translation>角色“%1”初始装备的防具 %2 不存在。</translation>
    </message>
    <message>
        <source>The class “%1” learns skill %2, which is not there.</source>
        <translation>职业“%1”要学会的技能 %2 不存在。</translation>
    </message>
    <message>
        <source>The enemy “%1” drops item %2, which is not there.</source>
        <translation>敌人“%1”掉落的物品 %2 不存在。</translation>
    </message>
    <message>
        <source>An effect of “%1” names state %2, which is not there.</source>
        <translation>“%1”的效果所指定的状态 %2 不存在。</translation>
    </message>
    <message>
        <source>An effect of “%1” names skill %2, which is not there.</source>
        <translation>“%1”的效果所指定的技能 %2 不存在。</translation>
    </message>
    <message>
        <source>An effect of “%1” names common event %2, which is not there.</source>
        <translation>“%1”的效果所指定的公共事件 %2 不存在。</translation>
    </message>
    <message>
        <source>Actor %1 of the party is not there.</source>
        <translation>队伍中的角色 %1 不存在。</translation>
    </message>
    <message>
        <source>The map has %1 x %2 cells; a side has to have 1 to %3. Nobody can go there.</source>
        <translation>地图大小为 %1 × %2 格，每边必须为 1 到 %3 格。无法进入这张地图。</translation>
    </message>
    <message>
        <source>event %1</source>
        <translation>事件 %1</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>第 %1 页</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a place in the project, and what is wrong</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>This is no saved game that can be read here.</source>
        <translation>无法读取这个存档。</translation>
    </message>
    <message>
        <source>The game was saved on map %1 at %2, %3, and the project has no such place any more.</source>
        <translation>存档所在的位置（地图 %1 的 %2, %3）在项目中已经不存在了。</translation>
    </message>
    <message>
        <source>The project was changed since this game was saved: some things may not fit.</source>
        <translation>存档之后项目有过改动，有些内容可能对不上。</translation>
    </message>
    <message>
        <source>This begins by itself again and again, so the player can do nothing. Let it turn on a switch that another page waits for, or erase the event.</source>
        <translation>自动执行不断重复，玩家什么也做不了。请打开另一页所等待的开关，或者消除该事件。</translation>
    </message>
    <message>
        <source>There is no map to be on: nothing can be seen.</source>
        <translation>没有可以显示的地图。</translation>
    </message>
    <message>
        <source>There is no troop %1; nobody fights.</source>
        <translation>没有敌群 %1，不会发生战斗。</translation>
    </message>
    <message>
        <source>There is nothing to choose from.</source>
        <translation>没有可以选择的物品。</translation>
    </message>
    <message>
        <source>G</source>
        <comment>the currency</comment>
        <translation>G</translation>
    </message>
    <message>
        <source>%1 commands were done without a wait: is this a loop without an end? It goes on, slowly.</source>
        <translation>没有等待就执行了 %1 条指令，是不是没有尽头的循环？将放慢速度继续执行。</translation>
    </message>
    <message>
        <source>There is no command %1; it is passed by.</source>
        <translation>没有指令 %1，已跳过。</translation>
    </message>
    <message>
        <source>The route has not got on for %1 seconds: something is in the way.</source>
        <translation>移动路线已经 %1 秒没有前进：有东西挡住了路。</translation>
    </message>
    <message>
        <source>This event is not on the map.</source>
        <translation>该事件不在地图上。</translation>
    </message>
    <message>
        <source>There is no event %1 on the map.</source>
        <translation>地图上没有事件 %1。</translation>
    </message>
    <message>
        <source>A loop ends here that has not begun.</source>
        <translation>这里结束了一个没有开始的循环。</translation>
    </message>
    <message>
        <source>There is no loop to be left here.</source>
        <translation>这里没有可以中断的循环。</translation>
    </message>
    <message>
        <source>There is no label “%1” in this list.</source>
        <translation>这个列表里没有标签“%1”。</translation>
    </message>
    <message>
        <source>%1 common events call one another: does one call itself? This call is passed by.</source>
        <translation>公共事件的调用嵌套了 %1 层，是不是调用了自身？已跳过这次调用。</translation>
    </message>
    <message>
        <source>There is no state %1.</source>
        <translation>没有状态 %1。</translation>
    </message>
    <message>
        <source>%1 is now at level %2!</source>
        <translation>%1升到了%2级！</translation>
    </message>
    <message>
        <source>There is no skill %1.</source>
        <translation>没有技能 %1。</translation>
    </message>
    <message>
        <source>There is no weapon %1.</source>
        <translation>没有武器 %1。</translation>
    </message>
    <message>
        <source>There is no armor %1.</source>
        <translation>没有防具 %1。</translation>
    </message>
    <message>
        <source>The party has nothing of that kind to wear; nothing is changed.</source>
        <translation>队伍没有这件装备，不做任何更改。</translation>
    </message>
    <message>
        <source>A name cannot be put in during a battle.</source>
        <translation>战斗中不能输入名字。</translation>
    </message>
    <message>
        <source>A battle cannot begin here.</source>
        <translation>这里不能开始战斗。</translation>
    </message>
    <message>
        <source>There is no enemy outside of a battle.</source>
        <translation>不在战斗中，没有敌人。</translation>
    </message>
    <message>
        <source>There is no enemy %1 in this battle.</source>
        <translation>这场战斗中没有敌人 %1。</translation>
    </message>
    <message>
        <source>Nobody there can do this now.</source>
        <translation>现在没有谁能做这个行动。</translation>
    </message>
    <message>
        <source>There is no actor %1.</source>
        <translation>没有角色 %1。</translation>
    </message>
    <message>
        <source>There is no condition %1; it does not hold.</source>
        <translation>没有条件 %1，视为不成立。</translation>
    </message>
    <message>
        <source>There is no common event %1.</source>
        <translation>没有公共事件 %1。</translation>
    </message>
    <message>
        <source>Variable %1 is divided by 0; it stays what it is.</source>
        <translation>变量 %1 被 0 除，其值不变。</translation>
    </message>
    <message>
        <source>Only an event on a map has self switches.</source>
        <translation>只有地图上的事件才有独立开关。</translation>
    </message>
    <message>
        <source>There is no switch or variable %1; the numbers go from 1 to %2.</source>
        <translation>没有开关或变量 %1，编号为 1 到 %2。</translation>
    </message>
    <message>
        <source>There is no item %1.</source>
        <translation>没有物品 %1。</translation>
    </message>
    <message>
        <source>There is no picture %1; the numbers go from 1 to %2.</source>
        <translation>没有图片 %1，编号为 1 到 %2。</translation>
    </message>
    <message>
        <source>Picture %1 is not shown.</source>
        <translation>图片 %1 没有显示。</translation>
    </message>
    <message>
        <source>This cannot be done during a battle.</source>
        <translation>战斗中不能执行。</translation>
    </message>
    <message>
        <source>There is no map %1.</source>
        <translation>没有地图 %1。</translation>
    </message>
    <message>
        <source>Map %1 has no cell %2, %3.</source>
        <translation>地图 %1 没有格子 %2, %3。</translation>
    </message>
    <message>
        <source>A route that repeats has no end to wait for; the event goes on.</source>
        <translation>重复的移动路线没有尽头，无法等待，事件继续执行。</translation>
    </message>
    <message>
        <source>There is no animation %1.</source>
        <translation>没有动画 %1。</translation>
    </message>
    <message>
        <source>There is no balloon %1.</source>
        <translation>没有气泡图标 %1。</translation>
    </message>
    <message>
        <source>The shop offers something that is not in the database: number %1.</source>
        <translation>商店出售的商品不在数据库中：编号 %1。</translation>
    </message>
    <message>
        <source>There is no movement %1; it is passed by.</source>
        <translation>没有移动指令 %1，已跳过。</translation>
    </message>
    <message>
        <source>A wait of %1 frames is too long; it ends after %2.</source>
        <translation>等待 %1 帧太长了，将在 %2 帧后结束。</translation>
    </message>
    <message>
        <source>The face “%1” is one picture: its number %2 makes no difference.</source>
        <translation>头像“%1”只有一张图，编号 %2 没有作用。</translation>
    </message>
    <message>
        <source>An action of the enemy “%1” uses skill %2, which is not there.</source>
        <translation>敌人“%1”的行动所使用的技能 %2 不存在。</translation>
    </message>
    <message>
        <source>The trait “%2” makes no difference to the enemy “%1”: enemies use the skills of their actions, and win no EXP.</source>
        <translation>特性“%2”对敌人“%1”不起作用：敌人只使用行动模式中的技能，也不会获得经验值。</translation>
    </message>
    <message>
        <source>A trait of “%1” names state %2, which is not there.</source>
        <translation>“%1”的特性所指的状态 %2 不存在。</translation>
    </message>
    <message>
        <source>A trait of “%1” names skill %2, which is not there.</source>
        <translation>“%1”的特性所指的技能 %2 不存在。</translation>
    </message>
    <message>
        <source>“%1” has the trait “%2”, which there is not.</source>
        <translation>“%1”的特性“%2”并不存在。</translation>
    </message>
    <message>
        <source>“%1” has the effect “%2”, which there is not.</source>
        <translation>“%1”的效果“%2”并不存在。</translation>
    </message>
    <message>
        <source>The skill “%1” has the target %2, which there is not: it concerns nobody.</source>
        <translation>技能“%1”的目标 %2 并不存在：它对谁都不起作用。</translation>
    </message>
    <message>
        <source>Actor %1 of the party for trial battles is not there.</source>
        <translation>战斗测试队伍中的角色 %1 不存在。</translation>
    </message>
    <message>
        <source>The title screen has the command “%1”, which there is not.</source>
        <translation>标题画面的指令“%1”并不存在。</translation>
    </message>
    <message>
        <source>The game&apos;s language is set to %1. Test play says its own words, such as those of menus, in the language of the editor.</source>
        <translation>游戏的语言设置为 %1。试玩时，菜单等文字以编辑器的语言显示。</translation>
    </message>
    <message>
        <source>en_US</source>
        <comment>the locale that this translation is in</comment>
        <translation>zh_CN</translation>
    </message>
</context>
<context>
    <name>TitleScene</name>
    <message>
        <source>New game</source>
        <translation>新游戏</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续游戏</translation>
    </message>
    <message>
        <source>There is no saved game yet.</source>
        <translation>还没有存档。</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>There is nothing to set in test play.</source>
        <translation>试玩中没有可设置的内容。</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>制作人员</translation>
    </message>
    <message>
        <source>There are no credits in test play.</source>
        <translation>试玩中没有制作人员名单。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出游戏</translation>
    </message>
</context>
<context>
    <name>UseOnParty</name>
    <message>
        <source>It cannot be used.</source>
        <translation>不能使用。</translation>
    </message>
    <message>
        <source>It is of use in battle only.</source>
        <translation>只能在战斗中使用。</translation>
    </message>
    <message>
        <source>Use it on whom?</source>
        <translation>对谁使用？</translation>
    </message>
</context>
<context>
    <name>player::Artwork</name>
    <message>
        <source>There is no picture “%1”: a plain box is shown. Choose another picture in its place.</source>
        <extracomment>%1 is the name of a picture in the project.</extracomment>
        <translation>没有图片“%1”，因此显示为方框。请改选其他图片。</translation>
    </message>
</context>
<context>
    <name>player::GameView</name>
    <message>
        <source>The game</source>
        <extracomment>Read out to those who do not see it: the part of a window in which the game is played.</extracomment>
        <translation>游戏画面</translation>
    </message>
    <message>
        <source>The game waits. Click here to go on.</source>
        <extracomment>Over a game that stands still because another window has the keyboard.</extracomment>
        <translation>游戏已暂停。点击此处继续。</translation>
    </message>
</context>
<context>
    <name>player::KeyLine</name>
    <message>
        <source>Walk, choose</source>
        <extracomment>Below a game, behind the arrow keys: what they do. There is room for some 20 letters.</extracomment>
        <translation>移动、选择</translation>
    </message>
    <message>
        <source>Talk, confirm</source>
        <extracomment>Below a game, behind the enter key: what it does. There is room for some 20 letters.</extracomment>
        <translation>对话、确定</translation>
    </message>
    <message>
        <source>Menu, cancel</source>
        <extracomment>Below a game, behind the X key: what it does. There is room for some 20 letters.</extracomment>
        <translation>菜单、取消</translation>
    </message>
    <message>
        <source>Cancel, to the editor</source>
        <extracomment>Below a game, behind the escape key: what it does. There is room for some 30 letters.</extracomment>
        <translation>取消、返回编辑器</translation>
    </message>
    <message>
        <source>Begin anew</source>
        <extracomment>Below a game, behind the F5 key: what it does. There is room for some 20 letters.</extracomment>
        <translation>重新开始</translation>
    </message>
</context>
<context>
    <name>player::LogPane</name>
    <message>
        <source>Troop %1</source>
        <translation>敌群 %1</translation>
    </message>
    <message>
        <source>Common event %1</source>
        <translation>公共事件 %1</translation>
    </message>
    <message>
        <source>Event %1</source>
        <translation>事件 %1</translation>
    </message>
    <message>
        <source>Map %1</source>
        <translation>地图 %1</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>第 %1 页</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>Close the open windows of the editor first: they lie before that place.</source>
        <translation>请先关闭编辑器中打开的窗口，才能显示那个位置。</translation>
    </message>
    <message>
        <source>What the game cannot do. A double click, or Enter, leads to the place in the editor.</source>
        <translation>游戏中无法执行的内容。双击或按 Enter 键可在编辑器中打开相应位置。</translation>
    </message>
</context>
<context>
    <name>player::PlayerWindow</name>
    <message>
        <source>%1 – Test play</source>
        <extracomment>Title of the window of a game that is tried out; %1 is the name of the game.</extracomment>
        <translation>%1 – 试玩</translation>
    </message>
</context>
</TS>
