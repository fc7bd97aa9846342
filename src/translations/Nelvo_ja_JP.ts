<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>AdapterFile</name>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 を読み込めません。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not understood. The one line there may be is &quot;adapter=HOST&quot;.</source>
        <translation>%1: 「%2」は解釈できません。書けるのは「adapter=ホスト」の 1 行だけです。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is no host name and no IPv4 address.</source>
        <translation>%1: 「%2」はホスト名でも IPv4 アドレスでもありません。</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Nelvo, the operator&apos;s control station of an MBE growth chamber

Nelvo [OPTION]...
  -j                    in Japanese, as it is unless told otherwise
  -e                    in English; so is the program Nelvoe
  --check-pc[=SECONDS]  tells whether this PC keeps time and stays awake, after 60 s or SECONDS;
                        exit status 0 when it does, 1 when it does not
  --help                shows this and ends
  --version             shows the version and ends

The adapter&apos;s host is the one that the environment variable NELVO_ADAPTER names, else the one
in the line &quot;adapter=HOST&quot; of the file nelvo.ini beside the program, else the one compiled in.
</source>
        <translation>Nelvo: MBE 成長室の操作盤

Nelvo [オプション]...
  -j                    日本語で起動します (指定がなければ日本語)
  -e                    英語で起動します (プログラム名が Nelvoe の場合も英語)
  --check-pc[=SECONDS]  この PC の時間の正確さとスリープ設定を 60 秒間 (または SECONDS 秒間) 調べます。
                        終了コードは、問題がなければ 0、あれば 1 です
  --help                この説明を表示して終了します
  --version             バージョンを表示して終了します

アダプターのホストは、環境変数 NELVO_ADAPTER、プログラムと同じフォルダーにある nelvo.ini の
「adapter=ホスト」の行、ビルド時に組み込まれたアドレスの順に決まります。
</translation>
    </message>
</context>
<context>
    <name>LineSelect</name>
    <message>
        <source>Frame</source>
        <translation>枠</translation>
    </message>
    <message>
        <source>CheckBox</source>
        <translation>チェックボックス</translation>
    </message>
</context>
<context>
    <name>MBEMain</name>
    <message>
        <source>Be</source>
        <translation>Be</translation>
    </message>
    <message>
        <source>Ga</source>
        <translation>Ga</translation>
    </message>
    <message>
        <source>Si</source>
        <translation>Si</translation>
    </message>
    <message>
        <source>As4</source>
        <translation>As4</translation>
    </message>
    <message>
        <source>Al</source>
        <translation>Al</translation>
    </message>
    <message>
        <source>In</source>
        <translation>In</translation>
    </message>
    <message>
        <source>As7</source>
        <translation>As7</translation>
    </message>
    <message>
        <source>Main Ch</source>
        <translation>成長室</translation>
    </message>
    <message>
        <source>Pre Ch</source>
        <translation>準備室</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉</translation>
    </message>
    <message>
        <source>GPIB shutter controll [%1]</source>
        <translation>GPIB シャッター制御 [%1]</translation>
    </message>
    <message>
        <source>Setting time [%1] for the cell [%2:%3] is not correct.</source>
        <translation>セル [%2:%3] の所要時間 [%1] が正しくありません。</translation>
    </message>
    <message>
        <source>The temperature rise up rate should be less than %1 deg-C per min for the cell [%2:%3].</source>
        <translation>セル [%2:%3] の昇温速度は毎分 %1 ℃ 以下にしてください。</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>NotInUse</source>
        <translation>未使用</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Cell Tmp. and Open/Close</source>
        <translation>セル温度・シャッター開閉</translation>
    </message>
    <message>
        <source>Sub. Tmp.</source>
        <translation>基板温度</translation>
    </message>
    <message>
        <source>Seq. Ctrl.</source>
        <translation>シーケンス制御</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Time[sec]</source>
        <translation>時間[秒]</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>回数</translation>
    </message>
    <message>
        <source>The target [%1] of the cell [%2:%3] is not a number and counts as 0.</source>
        <translation>セル [%2:%3] の目標値 [%1] は数値ではないため、0 とみなします。</translation>
    </message>
    <message>
        <source>en</source>
        <comment>the language of the manual, which there is in en and ja</comment>
        <translation>ja</translation>
    </message>
    <message>
        <source>English</source>
        <comment>the name of the language of these texts</comment>
        <translation>日本語</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MainWindow</source>
        <translation>MBE 成長室 操作盤</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Controll</source>
        <translation>制御</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>セル</translation>
    </message>
    <message>
        <source>Be</source>
        <translation>Be</translation>
    </message>
    <message>
        <source>Ga</source>
        <translation>Ga</translation>
    </message>
    <message>
        <source>Si</source>
        <translation>Si</translation>
    </message>
    <message>
        <source>As</source>
        <translation>As</translation>
    </message>
    <message>
        <source>Al</source>
        <translation>Al</translation>
    </message>
    <message>
        <source>In</source>
        <translation>In</translation>
    </message>
    <message>
        <source>Main Ch</source>
        <translation>成長室</translation>
    </message>
    <message>
        <source>Pre Ch</source>
        <translation>準備室</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>Current [deg C]</source>
        <translation>現在値 [℃]</translation>
    </message>
    <message>
        <source>0.0</source>
        <translation>0.0</translation>
    </message>
    <message>
        <source>Target [deg C]</source>
        <translation>目標値 [℃]</translation>
    </message>
    <message>
        <source>Dulation [min]</source>
        <translation>所要時間 [分]</translation>
    </message>
    <message>
        <source>10.0</source>
        <translation>10.0</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Setting Temp. [deg C]</source>
        <translation>設定値 [℃]</translation>
    </message>
    <message>
        <source>Elapsed Time [min]</source>
        <translation>経過時間 [分]</translation>
    </message>
    <message>
        <source>Shutter</source>
        <translation>シャッター</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>閉</translation>
    </message>
    <message>
        <source>New</source>
        <translation>次</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>切替</translation>
    </message>
    <message>
        <source>All Close</source>
        <translation>全閉</translation>
    </message>
    <message>
        <source>Auto Program</source>
        <translation>自動プログラム</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Time : </source>
        <translation>時間 : </translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Total Time : </source>
        <translation>総時間 : </translation>
    </message>
    <message>
        <source>Rep. Times : </source>
        <translation>繰返し : </translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>全消去</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>時間計算</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>読込</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Time Chart</source>
        <translation>タイムチャート</translation>
    </message>
</context>
<context>
    <name>PcCheck</name>
    <message>
        <source>Ticks of 10 ms: %1, one every %2 ms, the latest %3 ms late
</source>
        <translation>10 ms ごとの刻み: %1 回、平均間隔 %2 ms、最大の遅れ %3 ms
</translation>
    </message>
    <message>
        <source>later than that
</source>
        <translation>それより遅い
</translation>
    </message>
    <message>
        <source>up to %1 ms late
</source>
        <translation>%1 ms までの遅れ
</translation>
    </message>
    <message>
        <source>never</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>after %1 min</source>
        <translation>%1 分後</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>no (%1)</source>
        <translation>いいえ (%1)</translation>
    </message>
    <message>
        <source>This system does not tell when it sleeps.
</source>
        <translation>このシステムからはスリープの設定がわかりません。
</translation>
    </message>
    <message>
        <source>Power plan: %1
</source>
        <translation>電源プラン: %1
</translation>
    </message>
    <message>
        <source>Sleeps, on mains: %1
</source>
        <translation>スリープ (電源接続時): %1
</translation>
    </message>
    <message>
        <source>Hibernates, on mains: %1
</source>
        <translation>休止状態 (電源接続時): %1
</translation>
    </message>
    <message>
        <source>Kept awake while a program plays or a ramp runs: %1
</source>
        <translation>プログラム実行中・昇降温中のスリープ防止: %1
</translation>
    </message>
    <message>
        <source>Timers kept fine under a covered window: %1
</source>
        <translation>ウィンドウが隠れたときのタイマーの精度維持: %1
</translation>
    </message>
    <message>
        <source>The ticks are too late: steps and ramps would be late with them.
</source>
        <translation>刻みが遅すぎます。ステップと昇降温も遅れます。
</translation>
    </message>
    <message>
        <source>The PC sleeps or hibernates by itself: nobody would watch the cells then. Set sleep and hibernation to &quot;never&quot;.
</source>
        <translation>この PC は自動的にスリープまたは休止状態になります。その間セルは監視されません。スリープと休止状態を「なし」に設定してください。
</translation>
    </message>
    <message>
        <source>This PC can run the station.
</source>
        <translation>この PC で操作盤を動かせます。
</translation>
    </message>
    <message>
        <source>The PC is being checked</source>
        <translation>PC を調べています</translation>
    </message>
</context>
<context>
    <name>PcGuard</name>
    <message>
        <source>A growth program is playing.</source>
        <translation>成長プログラムを実行中です。</translation>
    </message>
    <message>
        <source>A cell&apos;s temperature is ramping.</source>
        <translation>セルを昇降温中です。</translation>
    </message>
</context>
<context>
    <name>PlatformRefusal</name>
    <message>
        <source>this system has no such call</source>
        <translation>このシステムにはその機能がありません</translation>
    </message>
    <message>
        <source>error %1</source>
        <translation>エラー %1</translation>
    </message>
    <message>
        <source>error %1 for timers, speed alone was done</source>
        <translation>タイマーはエラー %1、速度だけ設定しました</translation>
    </message>
</context>
<context>
    <name>TShow</name>
    <message>
        <source>Frame</source>
        <translation>枠</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Shift in X : Drag with Left button&lt;/p&gt;&lt;p&gt;Mag. in X : Wheel with no button&lt;/p&gt;&lt;p&gt;Shift in Y : Drag with Right button&lt;/p&gt;&lt;p&gt;Mag. in Y : Wheel with Right button&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;時間軸の移動 : 左ボタンでドラッグ&lt;/p&gt;&lt;p&gt;時間軸の拡大縮小 : ボタンを押さずにホイール&lt;/p&gt;&lt;p&gt;温度軸の移動 : 右ボタンでドラッグ&lt;/p&gt;&lt;p&gt;温度軸の拡大縮小 : 右ボタンを押しながらホイール&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
</context>
<context>
    <name>TShowView</name>
    <message>
        <source>sec</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>min</source>
        <translation>分</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>day</source>
        <translation>日</translation>
    </message>
</context>
<context>
    <name>aLine</name>
    <message>
        <source>On</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>閉</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Paste(up)</source>
        <translation>上に貼り付け</translation>
    </message>
    <message>
        <source>Paste(down)</source>
        <translation>下に貼り付け</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
</context>
</TS>
