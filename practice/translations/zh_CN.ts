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
        <translation>请单击“%1”。</translation>
    </message>
    <message>
        <source>Double-click “%1” again.</source>
        <extracomment>%1 is what stands in the row of a list.</extracomment>
        <translation>请再次双击“%1”。</translation>
    </message>
    <message>
        <source>Right-click “%1” again.</source>
        <extracomment>%1 is what stands in the row of a list, or the name of a part of the window.</extracomment>
        <translation>请再次右键单击“%1”。</translation>
    </message>
    <message>
        <source>Click “%1” again.</source>
        <extracomment>%1 is the text of a button, tab or row of a list.</extracomment>
        <translation>请再次单击“%1”。</translation>
    </message>
    <message>
        <source>Something is different from what this step needs. Click “Put it back” in the lesson strip.</source>
        <translation>现在的状态和这一步需要的不一样。请单击课程栏中的“恢复原样”。</translation>
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
        <source>Practice editor</source>
        <translation>练习编辑器</translation>
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
</TS>
