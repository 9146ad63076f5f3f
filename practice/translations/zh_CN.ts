<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>DataFiles</name>
    <message>
        <source>%1 Nothing is lost: the editor keeps all your changes. Make room on the disk, or permit writing, and save again.</source>
        <extracomment>%1 is a sentence that names a file and says why it cannot be written.</extracomment>
        <translation>%1所有改动都还保留在编辑器里，没有丢失。请腾出磁盘空间，或允许写入，然后重新保存。</translation>
    </message>
    <message>
        <source>The project&apos;s file &quot;%1&quot; is damaged at line %2 (%3). Mend that line, or put a whole copy of the file in its place, and open the project again.</source>
        <extracomment>%1 is a file&apos;s path, %2 the number of a line, %3 what the JSON reader says of it.</extracomment>
        <translation>项目文件“%1”的第 %2 行已损坏（%3）。请修好这一行，或换上完好的文件副本，然后重新打开项目。</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Save the changes in &quot;%1&quot;?</source>
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
    <name>LessonPanel</name>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Skip step</source>
        <translation>跳过此步</translation>
    </message>
    <message>
        <source>Lessons</source>
        <translation>课程</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>重新开始</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <extracomment>How far the lesson is: %1 is the number of the step, %2 how many there are.</extracomment>
        <translation>第 %1 步，共 %2 步</translation>
    </message>
    <message>
        <source>Open &quot;%1&quot; again, or skip the step.</source>
        <extracomment>%1 is the title of a window that the person has closed.</extracomment>
        <translation>请重新打开“%1”，或跳过此步。</translation>
    </message>
    <message>
        <source>The lesson is finished.</source>
        <translation>本课已完成。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened.</source>
        <extracomment>%1 is the title of a lesson.</extracomment>
        <translation>无法打开“%1”。</translation>
    </message>
    <message>
        <source>The guide does not answer.</source>
        <translation>向导没有响应。</translation>
    </message>
</context>
<context>
    <name>LessonProject</name>
    <message>
        <source>The data files of the lesson have not come, so &quot;%1&quot; is without them. Start the lesson again.</source>
        <extracomment>%1 is the name of the project.</extracomment>
        <translation>没有收到本课的数据文件，所以项目“%1”里没有这些文件。请重新开始本课。</translation>
    </message>
</context>
<context>
    <name>PracticeEditor</name>
    <message>
        <source>The editor cannot listen on &quot;%1&quot;: %2. Start it again with another --key, or without one.</source>
        <extracomment>%1 is the name of a local server, %2 the system&apos;s reason.</extracomment>
        <translation>无法在“%1”上等待连接（%2）。请换一个 --key，或不带 --key 重新启动。</translation>
    </message>
    <message>
        <source>The guide &quot;%1&quot; does not start: %2. Build the target Tutorial, or name the program with --companion.</source>
        <extracomment>The guide is the companion program; %1 is its path, %2 the system&apos;s reason.</extracomment>
        <translation>无法启动向导“%1”（%2）。请构建目标 Tutorial，或用 --companion 指定程序。</translation>
    </message>
    <message>
        <source>The guide ended unexpectedly. Your project is not affected.
Restart it? The lesson begins again.</source>
        <extracomment>Asks whether the guide is to be started again.</extracomment>
        <translation>向导意外结束了。你的项目不受影响。
要重新启动吗？本课会从头开始。</translation>
    </message>
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
</context>
<context>
    <name>ProjectFolder</name>
    <message>
        <source>A project cannot have the name &quot;%1&quot;: its folder is named after it. Choose another name, without &quot;/&quot;.</source>
        <extracomment>%1 is the name that the person gave a new project.</extracomment>
        <translation>项目不能叫“%1”，因为项目文件夹也用这个名称。请换一个不含“/”的名称。</translation>
    </message>
    <message>
        <source>The project cannot hold the file &quot;%1&quot;: it would lie outside of the project&apos;s folder.</source>
        <extracomment>%1 is a path inside the project.</extracomment>
        <translation>项目不能包含文件“%1”，因为该文件会位于项目文件夹之外。</translation>
    </message>
    <message>
        <source>The project&apos;s folder cannot be made in &quot;%1&quot; (%2). Choose another place.</source>
        <extracomment>%1 is a folder, %2 the system&apos;s reason.</extracomment>
        <translation>无法在“%1”里建立项目文件夹（%2）。请换一个位置。</translation>
    </message>
    <message>
        <source>The project&apos;s folder &quot;%1&quot; cannot be made. Choose another name or place.</source>
        <extracomment>%1 is the folder&apos;s path.</extracomment>
        <translation>无法建立项目文件夹“%1”。请换一个名称或位置。</translation>
    </message>
    <message>
        <source>The project&apos;s file &quot;%1&quot; cannot be written (%2).</source>
        <extracomment>%1 is the file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>无法写入项目中的文件“%1”（%2）。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no project: it has no data files. Choose another folder.</source>
        <extracomment>%1 is a folder.</extracomment>
        <translation>“%1”里没有数据文件，不是项目。请选择别的文件夹。</translation>
    </message>
    <message>
        <source>The project&apos;s file &quot;%1&quot; cannot be read (%2). Permit reading it, and open the project again.</source>
        <extracomment>%1 is the file&apos;s path, %2 the system&apos;s reason.</extracomment>
        <translation>无法读取项目中的文件“%1”（%2）。请允许读取它，然后重新打开项目。</translation>
    </message>
    <message>
        <source>The project&apos;s folder &quot;%1&quot; cannot be read: you are not permitted to list its files. Permit it, and open the project again.</source>
        <extracomment>%1 is a folder.</extracomment>
        <translation>无法读取项目文件夹“%1”：你没有列出其中文件的权限。请授予权限，然后重新打开项目。</translation>
    </message>
</context>
</TS>
